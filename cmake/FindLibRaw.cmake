# The library of raw files. Defines the target LibRaw::LibRaw.
find_path(LibRaw_INCLUDE_DIR libraw/libraw.h)
find_library(LibRaw_LIBRARY raw)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LibRaw REQUIRED_VARS LibRaw_LIBRARY LibRaw_INCLUDE_DIR)
if(LibRaw_FOUND AND NOT TARGET LibRaw::LibRaw)
  add_library(LibRaw::LibRaw UNKNOWN IMPORTED)
  set_target_properties(LibRaw::LibRaw PROPERTIES
    IMPORTED_LOCATION ${LibRaw_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${LibRaw_INCLUDE_DIR})
endif()

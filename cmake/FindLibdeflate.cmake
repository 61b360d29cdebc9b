# The library that compresses whole blocks as zlib does, faster. Defines the target Libdeflate::Libdeflate.
find_path(Libdeflate_INCLUDE_DIR libdeflate.h)
find_library(Libdeflate_LIBRARY deflate)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Libdeflate REQUIRED_VARS Libdeflate_LIBRARY Libdeflate_INCLUDE_DIR)
if(Libdeflate_FOUND AND NOT TARGET Libdeflate::Libdeflate)
  add_library(Libdeflate::Libdeflate UNKNOWN IMPORTED)
  set_target_properties(Libdeflate::Libdeflate PROPERTIES
    IMPORTED_LOCATION ${Libdeflate_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${Libdeflate_INCLUDE_DIR})
endif()

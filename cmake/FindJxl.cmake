# The library of JPEG XL files. Defines the target Jxl::Jxl where it is found.
find_path(Jxl_INCLUDE_DIR jxl/decode.h)
find_library(Jxl_LIBRARY jxl)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Jxl REQUIRED_VARS Jxl_LIBRARY Jxl_INCLUDE_DIR)
if(Jxl_FOUND AND NOT TARGET Jxl::Jxl)
  add_library(Jxl::Jxl UNKNOWN IMPORTED)
  set_target_properties(Jxl::Jxl PROPERTIES
    IMPORTED_LOCATION ${Jxl_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${Jxl_INCLUDE_DIR})
endif()

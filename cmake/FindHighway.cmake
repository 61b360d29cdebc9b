# The vector library. Defines the target Highway::Highway.
find_path(Highway_INCLUDE_DIR hwy/highway.h)
find_library(Highway_LIBRARY hwy)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Highway REQUIRED_VARS Highway_LIBRARY Highway_INCLUDE_DIR)
if(Highway_FOUND AND NOT TARGET Highway::Highway)
  add_library(Highway::Highway UNKNOWN IMPORTED)
  set_target_properties(Highway::Highway PROPERTIES
    IMPORTED_LOCATION ${Highway_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${Highway_INCLUDE_DIR})
endif()

# The library of HEIC and AVIF files. Defines the target Heif::Heif where it is found.
find_path(Heif_INCLUDE_DIR libheif/heif.h)
find_library(Heif_LIBRARY heif)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Heif REQUIRED_VARS Heif_LIBRARY Heif_INCLUDE_DIR)
if(Heif_FOUND AND NOT TARGET Heif::Heif)
  add_library(Heif::Heif UNKNOWN IMPORTED)
  set_target_properties(Heif::Heif PROPERTIES
    IMPORTED_LOCATION ${Heif_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${Heif_INCLUDE_DIR})
endif()

# The library of hashes, for SHA-256. Defines the target Nettle::Nettle.
find_path(Nettle_INCLUDE_DIR nettle/sha2.h)
find_library(Nettle_LIBRARY nettle)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Nettle REQUIRED_VARS Nettle_LIBRARY Nettle_INCLUDE_DIR)
if(Nettle_FOUND AND NOT TARGET Nettle::Nettle)
  add_library(Nettle::Nettle UNKNOWN IMPORTED)
  set_target_properties(Nettle::Nettle PROPERTIES
    IMPORTED_LOCATION ${Nettle_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${Nettle_INCLUDE_DIR})
endif()

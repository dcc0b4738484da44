# The library that unpacks workbooks, as LibZip::LibZip. What some packages of it tell CMake names
# programs of other packages, so that only header and library are looked for.
find_path(LibZip_INCLUDE_DIR zip.h)
find_library(LibZip_LIBRARY zip)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LibZip DEFAULT_MSG LibZip_LIBRARY LibZip_INCLUDE_DIR)
mark_as_advanced(LibZip_INCLUDE_DIR LibZip_LIBRARY)
if(LibZip_FOUND AND NOT TARGET LibZip::LibZip)
  add_library(LibZip::LibZip UNKNOWN IMPORTED)
  set_target_properties(LibZip::LibZip PROPERTIES
    IMPORTED_LOCATION "${LibZip_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES "${LibZip_INCLUDE_DIR}")
endif()

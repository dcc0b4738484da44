# The program in one piece: with the headers of every other build, and static libraries in the places of
# the shared ones that Debian packages. scripts/make-libraries makes them.
list(PREPEND CMAKE_PREFIX_PATH "${PROJECT_SOURCE_DIR}/build/libraries/linux")
set(CMAKE_FIND_LIBRARY_SUFFIXES .a)

foreach(name fmt hwy tomlplusplus)
  find_library(KALDO_STATIC_${name} ${name} REQUIRED)
  foreach(configuration "" _NONE)
    set_target_properties(${name}::${name} PROPERTIES
      IMPORTED_LOCATION${configuration} "${KALDO_STATIC_${name}}" IMPORTED_SONAME${configuration} "")
  endforeach()
endforeach()
find_package(pugixml QUIET)
if(TARGET pugixml::static)
  set_target_properties(pugixml::pugixml PROPERTIES INTERFACE_LINK_LIBRARIES pugixml::static)
endif()
add_link_options(-static -s)

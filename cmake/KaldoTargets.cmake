# What every target of the project shares: warnings, numerics, sanitizers.

add_library(kaldo_options INTERFACE)
target_compile_features(kaldo_options INTERFACE cxx_std_20)
target_compile_options(kaldo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # A fused multiply-add rounds once where the method rounds twice: two equally likely pairs would
  # no longer tie on every machine.
  -ffp-contract=off
  $<$<BOOL:${KALDO_WARNINGS_AS_ERRORS}>:-Werror>)
if(EMSCRIPTEN)
  # Sizes have 32 bits there, as most numbers of the method: what is converted between them is
  # checked by the builds for 64 bits.
  target_compile_options(kaldo_options INTERFACE
    -Wno-shorten-64-to-32 -Wno-sign-conversion -Wno-c++11-narrowing)
endif()
if(KALDO_DEBUG_STDLIB)
  target_compile_definitions(kaldo_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(KALDO_SANITIZE)
  target_compile_options(kaldo_options INTERFACE
    -fsanitize=${KALDO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kaldo_options INTERFACE -fsanitize=${KALDO_SANITIZE})
endif()

# kaldo_precompile(TARGET HEADER...): what most sources include, and the headers named, is read once for
# the whole target where a build is made often and from nothing. The release build does without: there
# a source that forgets an include does not build.
function(kaldo_precompile target)
  if(KALDO_PRECOMPILE_HEADERS)
    target_precompile_headers(${target} PRIVATE <algorithm> <array> <filesystem> <functional> <map>
      <optional> <span> <string> <string_view> <vector> <fmt/format.h> ${ARGN})
  endif()
endfunction()

# kaldo_add_room(NAME [FOLDERS folder...] [SOURCES file...] [HEADERS header...] LINKS target...
#   PRIVATE_LINKS target...)
# A room of src/ as one static library: every source of its folder and of the folders named, but
# main.cpp. SOURCES are those that stand elsewhere, HEADERS what kaldo_precompile() reads besides.
# Headers are included by their room: "genotypes/loci_list.h". A room links only to the rooms below it,
# so a wrong include does not build.
function(kaldo_add_room name)
  cmake_parse_arguments(ARG "" "" "FOLDERS;SOURCES;HEADERS;LINKS;PRIVATE_LINKS" ${ARGN})
  set(patterns *.cpp)
  foreach(folder ${ARG_FOLDERS})
    list(APPEND patterns "${folder}/*.cpp")
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} STATIC ${sources} ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name}
    PUBLIC ${ARG_LINKS}
    PRIVATE kaldo_options ${ARG_PRIVATE_LINKS})
  kaldo_precompile(${name} ${ARG_HEADERS})
endfunction()

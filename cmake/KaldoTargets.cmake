# What every target of the project shares: warnings, numerics, sanitizers.

add_library(kaldo_options INTERFACE)
target_compile_features(kaldo_options INTERFACE cxx_std_20)
target_compile_options(kaldo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # A fused multiply-add rounds once where the method rounds twice: two equally likely pairs would
  # no longer tie on every machine.
  -ffp-contract=off
  $<$<BOOL:${KALDO_WARNINGS_AS_ERRORS}>:-Werror>)
if(KALDO_DEBUG_STDLIB)
  target_compile_definitions(kaldo_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(KALDO_SANITIZE)
  target_compile_options(kaldo_options INTERFACE
    -fsanitize=${KALDO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kaldo_options INTERFACE -fsanitize=${KALDO_SANITIZE})
endif()

# kaldo_add_library(NAME SOURCES file... LINKS target...)
# A folder of src/ as one static library. Its headers are included by their folder:
# "genotypes/loci_list.h".
function(kaldo_add_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name}
    PUBLIC ${ARG_LINKS}
    PRIVATE kaldo_options ${ARG_PRIVATE_LINKS})
endfunction()

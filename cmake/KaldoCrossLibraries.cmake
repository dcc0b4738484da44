# The libraries of a build for another system. Those that need no compiling are taken from this
# machine's headers: they are linked into a folder of their own, since the headers of this machine's
# C library, which lie beside them, must not be found.
set(kaldo_headers "${PROJECT_BINARY_DIR}/headers")
find_path(KALDO_HOST_INCLUDE fmt/format.h PATHS /usr/include /usr/local/include REQUIRED
  NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
file(MAKE_DIRECTORY "${kaldo_headers}")
foreach(tree CLI fmt hwy nlohmann tl toml++ utf8 utf8.h)
  if(NOT EXISTS "${KALDO_HOST_INCLUDE}/${tree}")
    message(FATAL_ERROR "${KALDO_HOST_INCLUDE}/${tree} is not there: see scripts/install-packages")
  endif()
  file(CREATE_LINK "${KALDO_HOST_INCLUDE}/${tree}" "${kaldo_headers}/${tree}" SYMBOLIC)
endforeach()

# kaldo_header_library(NAME DEFINITION...)
function(kaldo_header_library name)
  add_library(${name} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${name} SYSTEM INTERFACE "${kaldo_headers}")
  target_compile_definitions(${name} INTERFACE ${ARGN})
endfunction()
kaldo_header_library(CLI11::CLI11)
kaldo_header_library(tl::expected)
kaldo_header_library(tomlplusplus::tomlplusplus TOML_HEADER_ONLY=1)
kaldo_header_library(utf8::cpp)
kaldo_header_library(nlohmann_json::nlohmann_json)
# For the processor of the build alone: finding out about others is in the compiled part.
kaldo_header_library(hwy::hwy HWY_COMPILE_ONLY_STATIC=1)

# What every report is written with would take a third of the time of the whole build where each source
# compiles it again.
add_library(kaldo_fmt STATIC "${CMAKE_CURRENT_LIST_DIR}/fmt.cpp")
target_include_directories(kaldo_fmt SYSTEM PUBLIC "${kaldo_headers}")
target_compile_features(kaldo_fmt PUBLIC cxx_std_20)
add_library(fmt::fmt ALIAS kaldo_fmt)

if(EMSCRIPTEN)
  add_library(Threads::Threads INTERFACE IMPORTED GLOBAL)  # there are none
else()
  find_package(Threads REQUIRED)
endif()

# WebAssembly for the page, built with Debian's emscripten.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
# Vectors of 128 bits, which every browser of these years has, for the bounds of the search.
set(CMAKE_CXX_FLAGS_INIT "-fexceptions -msimd128")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fexceptions")

# Where another Node than Debian's comes first, it finds the libraries of Debian's by this alone.
set_property(GLOBAL PROPERTY RULE_LAUNCH_LINK
  "\"${CMAKE_COMMAND}\" -E env NODE_PATH=/usr/share/nodejs")

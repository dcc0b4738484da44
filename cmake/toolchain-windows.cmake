# Programs for 64-bit Windows 10 and later, built with Debian's mingw-w64. They need no library but
# those of Windows, and a processor with SSE 4.2, which all of the last ten years have.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_CXX_FLAGS_INIT "-march=x86-64-v2")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s")
# The other one of its two libraries wants a file that Windows does not have.
set(ZLIB_USE_STATIC_LIBS ON)

# First what scripts/make-libraries made of what Debian has not packaged for Windows.
cmake_path(SET kaldo_libraries NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../build/libraries")
set(CMAKE_FIND_ROOT_PATH
  "${kaldo_libraries}/windows" "${kaldo_libraries}/windows-desktop" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

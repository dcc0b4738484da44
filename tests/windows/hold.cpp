// SPDX-License-Identifier: GPL-3.0-or-later
// Holds a file open as a spreadsheet does until a line comes: hold.exe FILE
#include <cstdio>
#include <windows.h>

int main(int argc, char** argv) {
  const HANDLE file = argc < 2 ? INVALID_HANDLE_VALUE
                               : CreateFileA(argv[1], GENERIC_READ, FILE_SHARE_READ, nullptr,
                                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  std::puts(file == INVALID_HANDLE_VALUE ? "failed" : "held");
  std::fflush(stdout);
  return std::getchar() == EOF ? 1 : 0;
}

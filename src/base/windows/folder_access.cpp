// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/folder_access.h"

#include <filesystem>

#include "base/path_text.h"
#include "base/windows/system_error.h"

namespace kaldo {

std::error_code WhyNotWritable(const std::string& folder) {
  const std::filesystem::path path = FilePath(folder);
  const HANDLE opened = ::CreateFileW(path.c_str(), FILE_ADD_FILE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (opened == INVALID_HANDLE_VALUE) {
    return SystemError(::GetLastError());
  }
  ::CloseHandle(opened);
  std::error_code unknown;
  const auto space = std::filesystem::space(path, unknown);
  return !unknown && space.capacity > 0 && space.available == 0
             ? make_error_code(std::errc::no_space_on_device)
             : std::error_code();
}

}  // namespace kaldo

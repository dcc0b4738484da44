// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/folder_access.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace kaldo {

std::error_code WhyNotWritable(const std::string& folder) {
  if (::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0) {
    return {errno, std::generic_category()};
  }
  std::error_code unknown;
  const auto space = std::filesystem::space(folder, unknown);
  return !unknown && space.capacity > 0 && space.available == 0
             ? make_error_code(std::errc::no_space_on_device)
             : std::error_code();
}

}  // namespace kaldo

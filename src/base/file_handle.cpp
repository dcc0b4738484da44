// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_handle.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace kaldo {

namespace {

constexpr mode_t kReadableByAll = 0666;  // less what the user's mask takes away

}  // namespace

std::error_code LastError() { return {errno, std::generic_category()}; }

int OpenNewFile(const std::string& path) {
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kReadableByAll);
}

std::error_code WriteAll(int file, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(file, text.data(), text.size());
    if (written < 0 && errno == EINTR) {
      continue;
    }
    if (written < 0) {
      return LastError();
    }
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

}  // namespace kaldo

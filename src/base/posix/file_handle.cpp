// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_handle.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include "base/disk_file.h"

namespace kaldo {

namespace {

constexpr mode_t kReadableByAll = 0666;  // less what the user's mask takes away

std::error_code Told(bool succeeded) { return succeeded ? std::error_code() : LastError(); }

}  // namespace

std::error_code LastError() { return {errno, std::generic_category()}; }

int OpenNewFile(const std::string& path) {
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kReadableByAll);
}

int OpenOldFile(const std::string& path) {
  return ::open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC);
}

std::error_code CutFile(int file, std::uint64_t bytes) {
  const auto end = static_cast<off_t>(bytes);
  return Told(::ftruncate(file, end) == 0 && ::lseek(file, end, SEEK_SET) == end);
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

std::error_code SyncFile(int file) { return Told(::fsync(file) == 0); }

std::error_code CloseFile(int file) { return Told(::close(file) == 0); }

std::error_code SyncFolder(const std::string& path) {
  const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) {
    return {};  // a folder that may be written but not read
  }
  std::error_code error = SyncFile(folder);
  ::close(folder);
  if (error == std::errc::invalid_argument || error == std::errc::not_supported) {
    error.clear();
  }
  return error;
}

}  // namespace kaldo

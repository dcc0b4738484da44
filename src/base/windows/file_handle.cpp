// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_handle.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <sys/stat.h>

#include "base/disk_file.h"
#include "base/path_text.h"

namespace kaldo {

namespace {

constexpr std::size_t kMostBytesAtOnce = std::size_t{1} << 20U;
constexpr int kBytesAsTheyAre = _O_WRONLY | _O_BINARY | _O_NOINHERIT;

std::error_code Told(bool succeeded) { return succeeded ? std::error_code() : LastError(); }

}  // namespace

std::error_code LastError() { return {errno, std::generic_category()}; }

int OpenNewFile(const std::string& path) {
  return ::_wopen(FilePath(path).c_str(), kBytesAsTheyAre | _O_CREAT | _O_EXCL,
                  _S_IREAD | _S_IWRITE);
}

int OpenOldFile(const std::string& path) {
  const std::filesystem::path place = FilePath(path);
  std::error_code ignored;
  if (std::filesystem::is_symlink(place, ignored)) {
    errno = ELOOP;
    return -1;
  }
  return ::_wopen(place.c_str(), kBytesAsTheyAre);
}

std::error_code CutFile(int file, std::uint64_t bytes) {
  const auto end = static_cast<std::int64_t>(bytes);
  return Told(::_chsize_s(file, end) == 0 && ::_lseeki64(file, end, SEEK_SET) == end);
}

std::error_code WriteAll(int file, std::string_view text) {
  while (!text.empty()) {
    const auto part = static_cast<unsigned>(std::min(text.size(), kMostBytesAtOnce));
    const int written = ::_write(file, text.data(), part);
    if (written <= 0) {
      return written < 0 ? LastError() : make_error_code(std::errc::no_space_on_device);
    }
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

std::error_code SyncFile(int file) { return Told(::_commit(file) == 0); }

std::error_code CloseFile(int file) { return Told(::_close(file) == 0); }

// Windows writes which files are in a folder to the disk by itself, and lets nobody wait for it.
std::error_code SyncFolder(const std::string& /*path*/) { return {}; }

}  // namespace kaldo

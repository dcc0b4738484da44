// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/append_file.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace kaldo {

namespace {

constexpr mode_t kReadableByAll = 0666;  // less what the user's mask takes away

std::error_code LastError() { return {errno, std::generic_category()}; }

}  // namespace

std::error_code AppendFile::Create(const std::string& path) {
  Close();
  file_ =
      ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kReadableByAll);
  bytes_ = 0;
  return file_ >= 0 ? std::error_code() : LastError();
}

std::error_code AppendFile::Open(const std::string& path, std::uint64_t bytes) {
  Close();
  file_ = ::open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC);
  if (file_ < 0) {
    return LastError();
  }
  bytes_ = bytes;
  const std::error_code error = CutTo(bytes);
  if (error) {
    Close();
  }
  return error;
}

std::error_code AppendFile::CutTo(std::uint64_t bytes) const {
  const auto end = static_cast<off_t>(bytes);
  return ::ftruncate(file_, end) == 0 && ::lseek(file_, end, SEEK_SET) == end ? std::error_code()
                                                                              : LastError();
}

std::error_code AppendFile::Append(std::string_view text) {
  std::error_code error;
  std::string_view rest = text;
  while (!error && !rest.empty()) {
    const ssize_t written = ::write(file_, rest.data(), rest.size());
    if (written >= 0) {
      rest.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      error = LastError();
    }
  }
  if (!error && ::fsync(file_) != 0) {
    error = LastError();
  }
  if (error) {
    (void)CutTo(bytes_);
  } else {
    bytes_ += text.size();
  }
  return error;
}

void AppendFile::Close() {
  if (file_ >= 0) {
    ::close(std::exchange(file_, -1));
  }
}

}  // namespace kaldo

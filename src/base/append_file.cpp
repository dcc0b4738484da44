// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/append_file.h"

#include <fcntl.h>
#include <unistd.h>
#include <utility>

#include "base/file_handle.h"

namespace kaldo {

std::error_code AppendFile::Create(const std::string& path) {
  Close();
  file_ = OpenNewFile(path);
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
  std::error_code error = WriteAll(file_, text);
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/append_file.h"

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
  file_ = OpenOldFile(path);
  if (file_ < 0) {
    return LastError();
  }
  bytes_ = bytes;
  const std::error_code error = CutFile(file_, bytes);
  if (error) {
    Close();
  }
  return error;
}

std::error_code AppendFile::Append(std::string_view text) {
  std::error_code error = WriteAll(file_, text);
  if (!error) {
    error = SyncFile(file_);
  }
  if (error) {
    (void)CutFile(file_, bytes_);
  } else {
    bytes_ += text.size();
  }
  return error;
}

void AppendFile::Close() {
  if (file_ >= 0) {
    (void)CloseFile(std::exchange(file_, -1));
  }
}

}  // namespace kaldo

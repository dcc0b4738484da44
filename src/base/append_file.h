// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace kaldo {

/// A file that grows at its end, and of which the disk holds all that was appended whenever the
/// program or the machine ends. Every function tells what went wrong, or no error.
class AppendFile {
 public:
  AppendFile() = default;
  AppendFile(const AppendFile&) = delete;
  AppendFile& operator=(const AppendFile&) = delete;
  AppendFile(AppendFile&&) = delete;
  AppendFile& operator=(AppendFile&&) = delete;
  ~AppendFile() { Close(); }

  /// A new file: "File exists" when anything of that name is there.
  std::error_code Create(const std::string& path);

  /// The first so many bytes of a file that is there; what is behind them is cut off.
  std::error_code Open(const std::string& path, std::uint64_t bytes);

  /// Writes at the end and waits for the disk. After an error the file is as it was before, as far
  /// as the disk allows.
  std::error_code Append(std::string_view text);

  void Close();
  bool IsOpen() const { return file_ >= 0; }

  /// What was appended, and what the file was opened with.
  std::uint64_t Bytes() const { return bytes_; }

 private:
  int file_ = -1;
  std::uint64_t bytes_ = 0;
};

}  // namespace kaldo

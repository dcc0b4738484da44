// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace kaldo {

/// A file made anew for writing: never an earlier file of that name, nor what a link of that name
/// leads to. Every function tells what went wrong, or no error.
class NewFile {
 public:
  NewFile() = default;
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  NewFile(NewFile&&) = delete;
  NewFile& operator=(NewFile&&) = delete;

  /// Closes the file; it stays.
  ~NewFile();

  /// "File exists" when anything of that name is there.
  std::error_code Create(const std::string& path);
  std::error_code Write(std::string_view text) const;

  /// Waits until the disk holds every byte, and closes the file.
  std::error_code Finish();

 private:
  int file_ = -1;
};

/// Writes a new file whole, and waits until the disk holds it.
std::error_code WriteNewFile(const std::string& path, std::string_view text);

/// Waits until the disk holds which files are in a folder. A disk that cannot wait is no error.
std::error_code SyncFolder(const std::string& path);

/// True when something of that name is there, be it a link that leads nowhere.
bool IsThere(const std::string& path);

/// 16 hexadecimal digits that no other run draws, be it on another machine or in a container where
/// process numbers repeat.
std::string RandomName();

/// True for what RandomName() may draw.
bool IsRandomName(std::string_view text);

}  // namespace kaldo

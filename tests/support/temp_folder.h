// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kaldo::test {

/// A folder of its own for one test, gone with it.
class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  TempFolder(TempFolder&&) = delete;
  TempFolder& operator=(TempFolder&&) = delete;
  ~TempFolder();

  /// The path of a file in the folder.
  std::string Path(std::string_view name) const;

  /// Writes a file and returns its path.
  std::string Write(std::string_view name, std::string_view text) const;

  /// The names of the files in a folder below, sorted; empty when there is none.
  std::vector<std::string> FilesIn(std::string_view folder) const;

 private:
  std::string path_;
};

/// The bytes of a file; fails the test when it cannot be read.
std::string ReadFile(const std::string& path);

/// The lines joined by line ends, one behind the last too.
std::string Lines(const std::vector<std::string_view>& lines);

}  // namespace kaldo::test

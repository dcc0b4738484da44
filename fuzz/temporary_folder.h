// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>

namespace kaldo::fuzz {

/// A folder of this process for what only a file can show.
class TemporaryFolder {
 public:
  TemporaryFolder() { std::filesystem::create_directories(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& Path() const { return path_; }

  /// Writes a file and gives its path.
  std::string Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(path_ + "/" + name, std::ios::binary) << bytes;
    return path_ + "/" + name;
  }

  std::string Read(const std::string& name) const {
    std::ifstream file(path_ + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::string path_ =
      (std::filesystem::temp_directory_path() / ("kaldo-fuzz-" + std::to_string(getpid())))
          .string();
};

}  // namespace kaldo::fuzz

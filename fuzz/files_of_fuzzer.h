// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "base/temporary_folder.h"

namespace kaldo::fuzz {

/// A folder for what only a file can show.
class FilesOfFuzzer {
 public:
  const std::string& Path() const { return folder_.Path(); }

  /// Writes a file and gives its path.
  std::string Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(Path() + "/" + name, std::ios::binary) << bytes;
    return Path() + "/" + name;
  }

  std::string Read(const std::string& name) const {
    std::ifstream file(Path() + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  TemporaryFolder folder_;
};

}  // namespace kaldo::fuzz

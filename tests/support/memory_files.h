// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/file_source.h"

namespace kaldo::test {

/// Files that are nowhere on disk, by their names.
class MemoryFiles final : public FileSource {
 public:
  explicit MemoryFiles(std::map<std::string, std::string> texts) : texts_(std::move(texts)) {}

  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override {
    const std::string& text = texts_.at(path);
    return std::vector<char>(text.begin(), text.end());
  }

 private:
  std::map<std::string, std::string> texts_;
};

}  // namespace kaldo::test

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/temp_folder.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace kaldo::test {

TempFolder::TempFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "kaldo-test-XXXXXX").string();
  path_ = ::mkdtemp(name.data()) != nullptr ? name : throw std::runtime_error("mkdtemp failed");
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TempFolder::Path(std::string_view name) const {
  return path_ + '/' + std::string(name);
}

std::string TempFolder::Write(std::string_view name, std::string_view text) const {
  const std::string path = Path(name);
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << text;
  return path;
}

std::vector<std::string> TempFolder::FilesIn(std::string_view folder) const {
  std::vector<std::string> names;
  if (std::filesystem::is_directory(Path(folder))) {
    for (const auto& entry : std::filesystem::directory_iterator(Path(folder))) {
      names.push_back(entry.path().filename().string());
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string ReadFile(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  EXPECT_TRUE(stream.is_open()) << path;
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

std::string Lines(const std::vector<std::string_view>& lines) {
  std::string text;
  for (const std::string_view line : lines) {
    text.append(line).push_back('\n');
  }
  return text;
}

}  // namespace kaldo::test

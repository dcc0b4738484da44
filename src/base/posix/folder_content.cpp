// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/folder_content.h"

#include <filesystem>

#include "base/path_text.h"

namespace kaldo {

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (auto entry = std::filesystem::directory_iterator(FilePath(folder), error);
       !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    names.push_back(PathText(entry->path().filename()));
  }
  return names;
}

std::error_code RemoveFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::remove_all(FilePath(folder), error);
  return error;
}

}  // namespace kaldo

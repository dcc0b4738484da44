// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/project_folder.h"

#include <filesystem>

#include <fmt/format.h>

#include "base/path_text.h"
#include "base/problem.h"

namespace kaldo {

std::vector<std::string> ProjectFolder::Create() const {
  std::vector<std::string> made;
  std::error_code error;
  const std::filesystem::path whole = FilePath(name_);
  std::filesystem::path path = whole.root_path();
  for (const auto& part : whole.relative_path()) {
    path /= part;
    if (std::filesystem::create_directory(path, error)) {
      made.push_back(PathText(path));
    }
    if (error) {
      break;
    }
  }
  std::error_code ignored;
  if (!std::filesystem::is_directory(FilePath(name_), ignored)) {
    RemoveFolders(made);
    throw RunFailure(NotMadeSentence(name_, error == std::errc::file_exists
                                                ? fmt::format("\"{}\" is a file", PathText(path))
                                                : error.message()));
  }
  return made;
}

std::string NotMadeSentence(const std::string& folder, const std::string& reason) {
  return fmt::format("Cannot make the folder \"{}\": {}", folder, reason);
}

std::string NotWritableSentence(const std::string& folder, std::error_code reason) {
  return fmt::format("Cannot write into the folder \"{}\": {}", folder, reason.message());
}

std::string InTheWaySentence(const std::string& path) {
  return fmt::format("Cannot replace \"{}\": a folder of that name is in the way", path);
}

void RemoveFolders(const std::vector<std::string>& made) {
  std::error_code ignored;
  for (auto folder = made.rbegin(); folder != made.rend(); ++folder) {
    std::filesystem::remove(FilePath(*folder), ignored);
  }
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace kaldo {

/// The folder into which a run writes, named by the project name as the user typed it, relative to
/// the working folder. It may hold path separators.
class ProjectFolder {
 public:
  explicit ProjectFolder(std::string project_name) : name_(std::move(project_name)) {}

  const std::string& Name() const { return name_; }

  /// The path of an output file: the project name and the fixed file name, nothing else.
  std::string Path(std::string_view file) const { return name_ + std::string(file); }

  /// Makes the folder; one that exists is fine. Returns the folders made, outermost first. Throws
  /// RunFailure when it cannot be made.
  std::vector<std::string> Create() const;

 private:
  std::string name_;
};

// What is told when a folder cannot be made or written into, or a folder is where a file should be.
std::string NotMadeSentence(const std::string& folder, const std::string& reason);
std::string NotWritableSentence(const std::string& folder, std::error_code reason);
std::string InTheWaySentence(const std::string& path);

/// Removes the folders that Create() made, as far as nothing is in them.
void RemoveFolders(const std::vector<std::string>& made);

}  // namespace kaldo

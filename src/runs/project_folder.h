// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
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

/// Removes the folders that Create() made, as far as nothing is in them.
void RemoveFolders(const std::vector<std::string>& made);

}  // namespace kaldo

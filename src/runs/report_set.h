// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runs/project_folder.h"

namespace kaldo {

/// A report being written beside its final place. Text goes out in large blocks, so that a report
/// of any length takes little memory.
class ReportFile {
 public:
  /// Opens `path` followed by a suffix that no other running program uses.
  explicit ReportFile(std::string path);
  ReportFile(const ReportFile&) = delete;
  ReportFile& operator=(const ReportFile&) = delete;
  ReportFile(ReportFile&&) = delete;
  ReportFile& operator=(ReportFile&&) = delete;

  /// Removes the unfinished file, unless PutInPlace() was called.
  ~ReportFile();

  /// Throws RunFailure when the disk is full or the folder has gone.
  void Append(std::string_view text);

  /// Writes what is still in memory and closes the file.
  void Finish();

  /// Renames the finished file to its final name, which replaces an earlier file whole.
  void PutInPlace();

  const std::string& Path() const { return path_; }

 private:
  [[noreturn]] void Fail(std::string_view what) const;

  std::string path_;
  std::string unfinished_path_;
  std::string pending_;
  std::ofstream stream_;
  bool in_place_ = false;
};

/// The reports of one run. All are written beside the earlier ones first; Commit() puts them in
/// place together. When a run fails or is stopped before, the set goes away and every earlier
/// report stays as it was.
class ReportSet {
 public:
  explicit ReportSet(ProjectFolder folder)
      : folder_(std::move(folder)), folder_is_new_(folder_.Create()) {}
  ReportSet(const ReportSet&) = delete;
  ReportSet& operator=(const ReportSet&) = delete;
  ReportSet(ReportSet&&) = delete;
  ReportSet& operator=(ReportSet&&) = delete;

  /// Without a Commit() every trace of the set goes away, a folder made for it included.
  ~ReportSet();

  /// Starts a report, named with its leading "/": "/Summary.xls".
  ReportFile& Add(std::string_view file);

  /// Writes a whole report at once.
  void Add(std::string_view file, std::string_view text) { Add(file).Append(text); }

  /// Has a file that an earlier run may have left behind removed at Commit(). Throws RunFailure at
  /// once when a folder of that name is in the way.
  void Remove(std::string_view file);

  /// Writes a whole file outside the project folder, under the same rules.
  void AddElsewhere(const std::string& path, std::string_view text);

  void Commit();

 private:
  ProjectFolder folder_;
  bool folder_is_new_;
  std::vector<std::unique_ptr<ReportFile>> reports_;
  std::vector<std::string> obsolete_;
};

}  // namespace kaldo

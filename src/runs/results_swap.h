// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "runs/project_folder.h"

namespace kaldo {

/// What the exchange of results does to one file of the project folder.
struct SwappedFile {
  std::string name;      ///< with its leading "/"
  bool placed = false;   ///< a new file comes there; else the earlier one only goes
  bool existed = false;  ///< there is an earlier one
};

/// The exchange of the results of an earlier run for those of a new one, as one step.
///
/// New files wait in the folder `new` of a working folder inside the project folder. A journal in
/// the working folder says which files are exchanged. Then every earlier file moves to the folder
/// `old`, and every new one to its place. Once all are in place the journal is removed, and with it
/// all that is left of the earlier run. At every moment the disk holds the earlier files whole, or
/// the new ones: whatever happens, the journal and what lies where tell how to finish or to undo.
///
/// The functions throw RunFailure. All of them may be called again after a crash in any of them.
class ResultsSwap {
 public:
  /// Of a working folder, for instance "lake/.kaldo-0123456789abcdef".
  ResultsSwap(ProjectFolder project, std::string working_folder)
      : project_(std::move(project)), folder_(std::move(working_folder)) {}

  /// Makes the working folder and the folders in it.
  void MakeFolders() const;

  /// Where the new file waits.
  std::string NewPath(std::string_view name) const { return folder_ + "/new" + std::string(name); }

  /// Puts the new files, which the disk must hold, in place and takes the earlier ones away. The
  /// order of the files is kept. When that fails everything is as before, and the failure says so.
  void Do(const std::vector<SwappedFile>& files) const;

  /// True when a journal tells of an exchange that was not finished.
  bool IsUnfinished() const;

  /// Finishes the exchange of a run that has died, or undoes it where a new file is missing or
  /// cannot be moved. True when it was finished.
  bool Recover() const;

  /// Removes the working folder, unless there is a journal. What cannot be removed now is left to
  /// the next run.
  void Clean() const;

 private:
  std::string OldPath(std::string_view name) const { return folder_ + "/old" + std::string(name); }
  std::string JournalPath() const { return folder_ + "/journal"; }

  void WriteJournal(const std::vector<SwappedFile>& files) const;
  std::vector<SwappedFile> ReadJournal() const;
  bool RemoveJournal() const;
  void Finish(const std::vector<SwappedFile>& files) const;
  bool CanFinish(const std::vector<SwappedFile>& files) const;
  void Undo(const std::vector<SwappedFile>& files) const;
  void PutBack(const SwappedFile& file) const;
  static void Move(const std::string& from, const std::string& to, const std::string& shown);
  void SyncFolders() const;

  ProjectFolder project_;
  std::string folder_;
};

}  // namespace kaldo

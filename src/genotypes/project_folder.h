// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace kaldo {

// The names of the files of an allocation run, with their leading "/". The endings ".xls" mean
// tab-separated text that a spreadsheet opens. "Transmision" is written so: users' scripts look
// for that name.
inline constexpr std::string_view kMaxLikePairsFile = "/Max like pairs.txt";
inline constexpr std::string_view kAllocationResultsFile = "/Allocation results.xls";
inline constexpr std::string_view kTransmissionMatricesFile = "/Transmision matrices.xls";
inline constexpr std::string_view kServiceFile = "/Service file.xls";
inline constexpr std::string_view kSequenceResultsFile = "/Sequence results.xls";
inline constexpr std::string_view kSteppingErrorFile = "/Stepping error file.xls";
inline constexpr std::string_view kRunRecordFile = "/Run record.toml";

// Those of the simulation runs that both flows share.
inline constexpr std::string_view kSummaryFile = "/Summary.xls";
inline constexpr std::string_view kPseudoOffspringFile = "/pseudo-offspring.txt";

/// The names of the loci of the last simulation, in the working folder.
inline constexpr std::string_view kSavedLociFile = "SAUVLOCUSTULM.txt";

/// The folder into which a run writes, named by the project name as the user typed it, relative to
/// the working folder. It may hold path separators.
class ProjectFolder {
 public:
  explicit ProjectFolder(std::string project_name) : name_(std::move(project_name)) {}

  const std::string& Name() const { return name_; }

  /// The path of an output file: the project name and the fixed file name, nothing else.
  std::string Path(std::string_view file) const { return name_ + std::string(file); }

  /// Makes the folder and tells whether it is new; one that exists is fine. Throws RunFailure when
  /// it cannot be made.
  bool Create() const;

 private:
  std::string name_;
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "allocation/allocation_run.h"
#include "interchange/export/exported_study.h"

namespace kaldo {

// What run records call the files that exports alone read.
inline constexpr std::string_view kOriginalNamesRole = "original names";
inline constexpr std::string_view kSexesRole = "sexes";

/// The table of names that an import left beside the offspring; empty where there is none.
std::string NamesBeside(const std::string& offspring_file);

/// Makes what a user wants beside the reports of an allocation. Individuals and loci have the names
/// that they had before an import: those of the table that the settings name, else of "names.tsv"
/// beside the offspring, where there is one.
class AllocationExporter final : public AllocationExports {
 public:
  std::optional<Problem> Prepare(AllocationSettings& settings, AllocationInput& input,
                                 FileSource& source) override;
  std::vector<std::string_view> Files() const override;
  Exported Make(const AllocationSettings& settings, const AllocationInput& input,
                const AllocationResult& result, const RunRecord& record) override;

  /// The names of the files that Make() gave, without "/".
  const std::vector<std::string>& Made() const { return made_; }

 private:
  std::optional<Problem> ReadNames(const std::string& path, AllocationInput& input,
                                   FileSource& source);
  std::optional<Problem> ReadSexesFile(const std::string& path, AllocationInput& input,
                                       FileSource& source);
  void MakePedigree(const ExportedStudy& study, Exported& exported) const;

  ExportForms forms_;
  bool has_sequence_ = false;
  bool knows_sexes_ = false;
  OriginalNames names_;
  Sexes sexes_;
  std::vector<std::string> made_;
};

}  // namespace kaldo

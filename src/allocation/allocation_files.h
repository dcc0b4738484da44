// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

#include "allocation/allocation_settings.h"
#include "base/alike.h"
#include "genotypes/file_wide_checks.h"
#include "genotypes/loci_list.h"
#include "genotypes/record_cursor.h"
#include "runs/run_record.h"

namespace kaldo {

/// What an input file is for, with the problems that it may have.
struct AllocationFileRole {
  std::string AllocationSettings::*path = nullptr;
  std::string_view name;  ///< as in messages and run records: "collected males"
  ProblemKind no_name = ProblemKind::kNoParentsFile;
  ProblemKind odd_digits = ProblemKind::kOddDigitsInParents;
  ProblemKind undefined = ProblemKind::kUndefinedInParents;
  bool holds_parents = false;
};

/// An open input file and what it is for.
struct AllocationFile {
  AllocationFileRole role;
  TokenFile tokens;
  UndefinedAlleles undefined_alleles = UndefinedAlleles::kNone;  ///< those that it may have

  Separators SeparatorsHere() const {
    return role.holds_parents ? Separators::kAllowed : Separators::kNone;
  }
};

/// The open files of an allocation.
struct AllocationFiles {
  /// One file of parents or a file of males and one of females, then the offspring.
  std::vector<AllocationFile> genotypes;
  AllocationFile loci;

  /// What is known of single offspring: those of known mothers, candidates and groups of offspring
  /// that were given.
  std::vector<AllocationFile> knowledge;

  /// What a run record says of them.
  std::vector<RecordedInput> Recorded() const;
};

/// Opens the files of a flow: first every name must be given, then every file must open.
tl::expected<AllocationFiles, Problem> OpenAllocationFiles(const AllocationSettings& settings,
                                                           const FileOpener& open);

/// The files of an allocation as far as they can be opened.
struct OpenedAllocationFiles {
  std::vector<AllocationFile> genotypes;
  std::optional<AllocationFile> loci;
};

/// Opens every file that can be opened; the names and files that are missing are faults.
OpenedAllocationFiles OpenWhatIsThere(const AllocationSettings& settings, const FileOpener& open,
                                      AlikeGroups<Problem>& faults);

/// All faults that the tests below would tell of these files, one after the other.
void FindAllFaults(const OpenedAllocationFiles& files, const LociList& loci,
                   AlikeGroups<Problem>& faults);

/// The tests of the file screen, file by file and for all files together.
std::optional<Problem> CheckAllocationFiles(const AllocationFiles& files, const LociList& loci);

/// The stricter tests of every record that follow them.
std::optional<Problem> CheckAllocationRecords(const AllocationFiles& files, const LociList& loci,
                                              std::size_t digits_per_field);

}  // namespace kaldo

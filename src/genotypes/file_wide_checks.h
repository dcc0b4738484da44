// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>

#include "genotypes/field_faults.h"
#include "genotypes/loci_list.h"
#include "genotypes/record_cursor.h"

namespace kaldo {

/// What one genotype file of a screen is tested for, and the kinds of problem that tell its faults.
struct FileWideCheck {
  const TokenFile* file = nullptr;
  Separators separators = Separators::kNone;
  UndefinedAlleles undefined_alleles = UndefinedAlleles::kNone;
  ProblemKind odd_digits = ProblemKind::kOddDigitsInParents;
  ProblemKind undefined = ProblemKind::kUndefinedInParents;
  /// True where an odd number of digits is told at once, whatever was found before.
  bool odd_digits_ends_checks = false;
};

/// Tests one file by the file-wide counts: the fields with an even number of digits must be as many
/// as the words of the file allow, and then no field may hold a forbidden undefined allele. The
/// detail of the Problem names the first record at fault.
std::optional<Problem> CheckFileWide(const FileWideCheck& check, const LociList& loci);

/// Tests the files in order. One message is shown for all: the last fault found, unless a file that
/// ends the checks has odd digits. `earlier` is a fault found before that any fault here replaces.
std::optional<Problem> CheckFilesWide(std::span<const FileWideCheck> checks, const LociList& loci,
                                      std::optional<Problem> earlier = std::nullopt);

}  // namespace kaldo

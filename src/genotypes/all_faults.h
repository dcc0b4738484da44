// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "base/alike.h"
#include "genotypes/file_wide_checks.h"
#include "genotypes/loci_list.h"

namespace kaldo {

// A run tells the first fault of its files and ends. Whoever mends files wants to know all of them
// at once: they are searched for here, by the rules of the checks.

/// All faults of a names-of-loci file; CheckLoci tells the first.
std::vector<Problem> FindLociFaults(const TokenFile& file);

/// What a genotype file is searched for.
struct FaultSearch {
  std::vector<FileWideCheck> checks;  ///< of this file, in the order of a run
  std::size_t digits_per_field = 0;   ///< both alleles
  bool refuses_signs_of_no_parent = false;
};

/// Finds all faults of a genotype file: nothing where a run finds none, and first what it finds.
///
/// Where most lines hold a record each, every other line is a fault and does not disturb the next
/// record; else the search ends with the record in which names and genotypes part. Of a field the
/// first rule that it breaks is told. A mistake that runs through the whole file is one fault.
void FindAllFaults(const FaultSearch& search, const LociList& loci, AlikeGroups<Problem>& faults);

/// The most frequent number of digits of the genotypes in a file; 0 without any.
std::size_t CommonDigitsPerField(const TokenFile& file, RecordLayout layout);

}  // namespace kaldo

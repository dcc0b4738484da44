// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "method/allocation_outcome.h"
#include "method/locus_comparison.h"
#include "method/offset_tolerance.h"

namespace kaldo {

/// The loci of a run, in file order, each with its unit distance.
struct LociOfRun {
  std::vector<LocusIndex> loci;

  /// Of the k-th locus of the run, beside `loci`; not positive at a locus with a single size.
  std::vector<BasePairs> unit_distances;
};

/// Compares the offspring with any pair at every locus of the run, in the order of `loci`: what the
/// reports and windows show of a pair.
std::vector<LocusComparison> CompareWithPair(const GenotypeTable& table, Slot offspring,
                                             ParentPair pair, const LociOfRun& loci);

/// The second question of the method: the search has found the best pair of collected parents, but
/// is each of them good enough? Decides for each side of the first pair whether the collected
/// parent is accepted, or must be taken as uncollected (UC) because some offset exceeds the
/// tolerance, and counts its errors. The sides are judged apart. Ties are not looked into, and
/// without a pair nothing changes.
///
/// The rule is this program's convention (docs/method.md, "Offsets and tolerance"). It looks at
/// single loci, not at the likelihood, so that a misread allele one step away is forgiven and one
/// that no slip explains is not.
void DecideSides(const GenotypeTable& table, Slot offspring, const LociOfRun& loci,
                 OffsetTolerance tolerance, AllocationOutcome& outcome);

}  // namespace kaldo

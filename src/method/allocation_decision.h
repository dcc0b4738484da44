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
  std::vector<BasePairs> unit_distances;  ///< beside `loci`
};

/// Compares the offspring with a pair at every locus of the run.
std::vector<LocusComparison> CompareWithPair(const GenotypeTable& table, Slot offspring,
                                             ParentPair pair, const LociOfRun& loci);

/// Decides for each side of the first pair whether the collected parent is accepted or must be
/// taken as uncollected. Without a pair nothing changes.
void DecideSides(const GenotypeTable& table, Slot offspring, const LociOfRun& loci,
                 OffsetTolerance tolerance, AllocationOutcome& outcome);

}  // namespace kaldo

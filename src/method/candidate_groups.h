// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "genotypes/genotype_table.h"
#include "method/flow.h"

namespace kaldo {

/// Parents that may have met: one site, pond or cohort between two separators. Only pairs inside a
/// group are candidates.
struct CandidateGroup {
  SlotRange first;   ///< parent 1: any parent of the group, or the males
  SlotRange second;  ///< parent 2: the same range in the non-sexed flow, or the females
};

/// The partners with which `first_parent` forms pairs in its group: in the non-sexed flow the
/// parents behind it, so that each pair comes once, in the sexed flow all females.
SlotRange PartnersOf(Flow flow, const CandidateGroup& group, std::uint32_t first_parent);

/// Cuts `parents` at its separators. Leading, trailing and doubled separators make empty ranges.
std::vector<SlotRange> CutAtSeparators(const GenotypeTable& table, SlotRange parents);

/// The groups of a run. Non-sexed: `first` holds all parents and `second` is not looked at. Sexed:
/// the k-th group of males goes with the k-th group of females; both have equally many.
std::vector<CandidateGroup> FormGroups(Flow flow, const GenotypeTable& table, SlotRange first,
                                       SlotRange second);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "genotypes/genotype_table.h"
#include "method/flow.h"

namespace kaldo {

/// Parents that may have met: those of one site, pond or cohort. Only pairs inside a group are
/// candidates. `Range` tells what the parents are numbered by: SlotRange by their slots in a table,
/// other ranges by their places in a list made of it.
template <typename Range>
struct ParentGroup {
  Range first;   ///< parent 1: any parent of the group, or the males
  Range second;  ///< parent 2: the same range in the non-sexed flow, or the females
};

/// A group of a run: the slots between two separators of the parents file.
using CandidateGroup = ParentGroup<SlotRange>;

/// The rule which parents can meet: the partners with which `first_parent`, one of the group's
/// first parents, forms pairs. Sexed: all females of the group. Non-sexed: the parents behind it,
/// so that each pair comes once and nobody is paired with itself; the last one has none left.
template <typename Range>
constexpr Range PartnersOf(Flow flow, const ParentGroup<Range>& group,
                           decltype(Range::begin) first_parent) {
  return flow == Flow::kSexed ? group.second : Range{++first_parent, group.second.end};
}

/// Cuts `parents` at its separators. Leading, trailing and doubled separators make empty ranges.
std::vector<SlotRange> CutAtSeparators(const GenotypeTable& table, SlotRange parents);

/// The groups of a run. Non-sexed: `first` holds all parents and `second` is not looked at. Sexed:
/// the k-th group of males goes with the k-th group of females; both must have equally many, which
/// the check of the files sees to.
std::vector<CandidateGroup> FormGroups(Flow flow, const GenotypeTable& table, SlotRange first,
                                       SlotRange second);

}  // namespace kaldo

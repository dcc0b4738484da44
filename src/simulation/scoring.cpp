// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/scoring.h"

namespace kaldo {

SideCode CodeOfTrueParents(Flow flow, ParentPair pair, ParentPair truth, bool first_accepted,
                           bool second_accepted) {
  // One question for both flows: no male can be the true mother, and no female the true father.
  const auto is_true = [truth](Slot parent) {
    return parent == truth.parent1 || parent == truth.parent2;
  };
  return CodeOfSides(flow, first_accepted && is_true(pair.parent1),
                     second_accepted && is_true(pair.parent2));
}

void Score(Flow flow, const OriginClass& origin, const AllocationOutcome& outcome, ParentPair truth,
           ClassCounts& counts) {
  const bool has_pair = outcome.HasPair();
  const ParentPair pair = outcome.pairs.front();
  const bool first_accepted = has_pair && !outcome.par1_uncollected;
  const bool second_accepted = has_pair && !outcome.par2_uncollected;

  ++counts.size;
  ++counts.rows.at(
      origin.RowOf(CodeOfSides(flow, first_accepted, second_accepted),
                   CodeOfTrueParents(flow, pair, truth, first_accepted, second_accepted)));

  const SideCode in_pair = CodeOfTrueParents(flow, pair, truth, has_pair, has_pair);
  ++counts.first_pair.at(in_pair);
  if (!has_pair) {
    ++counts.nulls;
  } else if (outcome.pair_entries > 2 || outcome.more_than_five) {
    ++counts.ambiguous;
  } else {
    ++counts.single_pair.at(in_pair);
  }
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "method/allocation_outcome.h"
#include "simulation/flows/origin_class.h"
#include "simulation/iteration_counts.h"

namespace kaldo {

/// Which sides of `pair`, as far as they are accepted, are true parents (see SideCode). Sexed: the
/// male must be the true father, the female the true mother. Non-sexed: either true parent will do
/// for either side.
SideCode CodeOfTrueParents(Flow flow, ParentPair pair, ParentPair truth, bool first_accepted,
                           bool second_accepted);

/// Counts one pseudo-offspring of a class whose true parents are known: the decision on its sides,
/// which is what a user would believe, and apart from it the best pair as it was found.
void Score(Flow flow, const OriginClass& origin, const AllocationOutcome& outcome, ParentPair truth,
           ClassCounts& counts);

}  // namespace kaldo

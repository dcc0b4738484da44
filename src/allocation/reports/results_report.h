// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// The head of "/Allocation results.xls": what was run, the loci in use with their unit distances,
/// the legend and the column heads. The result lines follow.
std::string ResultsHead(const AllocationSettings& settings, const AllocationInput& input,
                        const AllocationResult& result);

/// What stands below the result lines: the proportions of single allocations and of pairs.
std::string ResultsProportions(Flow flow, const AllocationShares& shares);

/// The title of a results report: over all chosen loci, or over the last combination of a sequence.
std::string_view ResultsTitle(const AllocationSettings& settings);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// "/Sequence results.xls": the combinations of a cumulative sequence with their loci in order of
/// entry, and one line of proportions for each.
std::string SequenceReport(const AllocationSettings& settings, const AllocationInput& input,
                           const AllocationResult& result);

}  // namespace kaldo

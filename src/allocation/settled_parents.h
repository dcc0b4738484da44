// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "allocation/allocation_run.h"
#include "confidence/families.h"

namespace kaldo {

/// Of every offspring in file order. With posteriors its parents at the level of confidence;
/// without, what the results say of it where a single pair is the best, since among several the
/// order of the files decided.
std::vector<std::optional<SettledParents>> SettledParentsIn(Flow flow,
                                                            const AllocationResult& result);

}  // namespace kaldo

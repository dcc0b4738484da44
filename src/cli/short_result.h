// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "allocation/allocation_run.h"

namespace kaldo {

/// What the files of an input hold, in one line: individuals, groups, loci, digits, missing loci.
std::string InputSummary(Flow flow, const AllocationInput& input);

/// The result of a run as a user reads it first on standard output, ending with the closing
/// sentence. `exports` are the further files written.
std::string ShortResult(const AllocationSettings& settings, const AllocationRun& run,
                        const std::vector<std::string>& exports);

}  // namespace kaldo

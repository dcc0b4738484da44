// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// What the files of an input hold, in one line: individuals, groups, loci, digits, missing loci.
std::string InputSummary(Flow flow, const AllocationInput& input);

/// The result of a run as a user reads it first on standard output, ending with the closing
/// sentence.
std::string ShortResult(const AllocationSettings& settings, const AllocationRun& run);

}  // namespace kaldo

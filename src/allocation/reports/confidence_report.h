// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// The line of column heads of "/Confidence.tsv": how sure the parents of each offspring are. New
/// columns come at the end.
std::string ConfidenceHead(Flow flow);

/// The line of one offspring, counted from 0 in its file; for a result with posteriors.
std::string ConfidenceLine(Flow flow, const AllocationInput& input, const AllocationResult& result,
                           std::size_t offspring);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "allocation/allocation_input.h"
#include "base/alike.h"

namespace kaldo {

/// Reads what is known of single offspring into the `allowed` of an input whose individuals and
/// groups are loaded. Every offspring has a line of its own in each file, or none where nothing is
/// known of it; several files together allow what all of them allow. An individual that is not
/// there, or is there twice, and an offspring without any pair left are Problems: a slip of the pen
/// must not decide a parentage.
std::optional<Problem> ReadAllowedPairs(Flow flow, const AllocationFiles& files,
                                        AllocationInput& input);

/// The same, but tells all that is wrong with these files, first what ReadAllowedPairs tells.
/// Whether an offspring has a pair is asked only where nothing else is wrong with what is told of
/// it.
AlikeGroups<Problem> FindKnowledgeFaults(Flow flow, const AllocationFiles& files,
                                         AllocationInput& input);

}  // namespace kaldo

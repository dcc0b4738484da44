// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// How that report shows an individual: its name, a tab, its genotypes at the loci of the run.
std::string IndividualLine(const AllocationInput& input, const AllocationResult& result, Slot slot);

/// The block of one offspring (counted from 0 in its file) in "/Max like pairs.txt": its genotype
/// at the loci of the run and those of its most likely pairs, or "none", or that there are more
/// than five.
std::string MaxLikeBlock(const AllocationInput& input, const AllocationResult& result,
                         std::size_t offspring);

}  // namespace kaldo

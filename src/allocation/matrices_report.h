// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// The block of one offspring (counted from 0 in its file) in "/Transmision matrices.xls": locus by
/// locus its genotype beside those of its first pair with the condition, the distances and the
/// offsets, then the offsets of each parent and the verdict against the tolerance.
std::string MatricesBlock(const AllocationSettings& settings, const AllocationInput& input,
                          const AllocationResult& result, std::size_t offspring);

}  // namespace kaldo

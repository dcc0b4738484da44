// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <span>
#include <vector>

#include "simulation/figures/subset_figures.h"

namespace kaldo {

/// The places of the subsets, the best one first: by the probability that any allocation is
/// correct; of equal ones that of fewer loci, and then the one that ran first.
std::vector<std::size_t> RankSubsets(std::span<const SubsetFigures> subsets);

/// The best subset of each size: number of loci -> place among the subsets.
std::map<std::size_t, std::size_t> BestSubsets(std::span<const SubsetFigures> subsets);

}  // namespace kaldo

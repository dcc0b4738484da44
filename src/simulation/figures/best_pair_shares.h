// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulation/flows/simulation_design.h"
#include "simulation/iteration_counts.h"

namespace kaldo {

/// What the likelihood can do by itself: the best pair of every pseudo-offspring of a class, before
/// the decision on its sides. Shares of the class, 0 where it has no pseudo-offspring; the columns
/// of the per-iteration tables in their order:
/// - non-sexed: a single best pair with two, one or no true parents; several best pairs; none;
/// - sexed: a single best pair that is right, or not; with the right male, or not; with the right
///   female, or not; several best pairs; none.
std::vector<double> BestPairShares(Flow flow, const ClassCounts& counts);

/// The same over all classes, each column weighted; `weights` has one per class.
std::vector<double> GlobalBestPairShares(const SimulationDesign& design,
                                         std::span<const double> weights,
                                         const IterationCounts& counts);

/// The first columns as ratios to all pseudo-offspring with a single best pair, 0 where there are
/// none. Over all classes the ratios are formed of the weighted columns.
std::vector<double> RatiosToAssigned(const TableDesign& table, std::span<const double> columns);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulation/flows/simulation_design.h"
#include "simulation/iteration_counts.h"

namespace kaldo {

/// How often the most likely pair that was found first names true parents, whatever its offsets and
/// however many pairs tie with it: shares of the pseudo-offspring of a class whose pair has as many
/// of its collected true parents as there are, one fewer, ..., none. Without a collected true
/// parent there is nothing to name: one share, of all. For flows that tell first pairs.
std::vector<double> FirstPairShares(const OriginClass& origin, const ClassCounts& counts);

/// The share of single allocations, two per pseudo-offspring of any class, that name a true parent
/// in this way; 0 where nothing was made.
double CombinedFirstPairShare(const SimulationDesign& design, const IterationCounts& counts);

}  // namespace kaldo

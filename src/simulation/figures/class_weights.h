// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "simulation/simulation_settings.h"

namespace kaldo {

/// The proportion of collected parents, 0 to 1, of each parental set. `collected` holds per set the
/// number of collected parents, or of pseudo-collected ones as typed.
/// - Non-sexed: p = C / (C + U), with U uncollected parents as typed, fractions and all.
/// - Sexed: what the user estimates for the population, pm of the males and pf of the females,
///   whatever the numbers of parents drawn.
std::vector<double> CollectedShares(const SimulationSettings& settings,
                                    std::span<const double> collected);

/// The share of each class of origin in the population, in the order of the classes, when collected
/// and uncollected parents mate at random and have offspring alike. With p the proportion collected
/// and q = 1 - p:
/// - non-sexed: p p, 2 p q, q q, the binomial terms of two parents;
/// - sexed: pm pf, pm qf, qm pf, qm qf.
std::vector<double> ClassWeights(const SimulationSettings& settings,
                                 std::span<const double> collected);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "base/warning.h"
#include "simulation/simulation_input.h"

namespace kaldo {

/// The random numbers that all iterations of all subsets take, without those that true parents are
/// drawn with again.
double DrawsOfRun(const SimulationSettings& settings, const SimulationInput& input);

/// What the default random numbers cannot do in this run: tell frequencies apart that are smaller
/// than a step of the draws, where alleles have fewer than three digits, and go on without coming
/// round, which they do after 2^32 draws.
std::vector<Warning> WarnOfRandomNumbers(const SimulationSettings& settings,
                                         const SimulationInput& input);

}  // namespace kaldo

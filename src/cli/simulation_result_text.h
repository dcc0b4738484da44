// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/simulation_run.h"

namespace kaldo {

/// The result of a simulation as a user reads it first on standard output: per origin class and
/// globally the estimated probability of a correct allocation, ending with the closing sentences.
std::string ShortResult(const SimulationSettings& settings, const SimulationRun& run);

}  // namespace kaldo

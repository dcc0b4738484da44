// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "simulation/simulation_run.h"

namespace kaldo {

/// What the files and the settings of a simulation make, in two lines: parents, pseudo-offspring,
/// loci, error model.
std::string InputSummary(const SimulationSettings& settings, const SimulationInput& input);

/// The result of a simulation as a user reads it first on standard output: per origin class and
/// globally the estimated probability of a correct allocation, ending with the closing sentences.
/// `exports` are the further files written.
std::string ShortResult(const SimulationSettings& settings, const SimulationRun& run,
                        const std::vector<std::string>& exports);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/simulation_run.h"

namespace kaldo {

/// The head of the summary and of the per-iteration tables: every setting, the loci, and how many
/// pseudo-offspring each class has.
std::string ParameterBlock(const SimulationSettings& settings, const SimulationInput& input,
                           const SimulationResult& result);

/// "Type of simulations : sexed parental", without line end.
std::string_view TypeLine(const SimulationSettings& settings);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/simulation_run.h"

namespace kaldo {

/// The head of the summary and of the per-iteration tables: every setting, the loci, and how many
/// pseudo-offspring each class has.
std::string ParameterBlock(const SimulationSettings& settings, const SimulationInput& input,
                           const SimulationFlow& flow, const SimulationResult& result);

/// A label, a tab, a value and a line end.
std::string LabelLine(std::string_view label, std::string_view value);

}  // namespace kaldo

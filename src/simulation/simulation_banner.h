// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/simulation_input.h"

namespace kaldo {

/// Which simulation this was, and what its figures describe, in two sentences: how many parents
/// were collected and how many not, and whether pseudo-offspring were allocated with the model of
/// error with which they were made, as real ones would be.
std::string SimulationBanner(const SimulationSettings& settings, const SimulationInput& input);

}  // namespace kaldo

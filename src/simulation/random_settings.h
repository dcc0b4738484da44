// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulation/simulation_settings.h"

namespace kaldo {

/// The declarations of the settings of random numbers, and of how many iterations are enough. A
/// record that does not tell one has the default.
std::vector<Setting<SimulationSettings>> RandomSettings();

}  // namespace kaldo

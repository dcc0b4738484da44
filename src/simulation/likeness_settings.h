// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulation/simulation_settings.h"

namespace kaldo {

/// The declarations of the settings that make a simulation more like the allocation it stands for:
/// its model of error, undefined loci, and which tolerances and numbers of missing parents are
/// compared. A record that does not tell one has the default.
std::vector<Setting<SimulationSettings>> LikenessSettings();

}  // namespace kaldo

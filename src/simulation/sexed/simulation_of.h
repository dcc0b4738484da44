// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulation/simulation_flow.h"

namespace kaldo {

/// The simulation of a flow: the one place that chooses between the two.
const SimulationFlow& SimulationOf(Flow flow);

}  // namespace kaldo

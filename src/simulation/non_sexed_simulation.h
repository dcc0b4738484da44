// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulation/simulation_flow.h"

namespace kaldo {

/// The simulation with one set of parents. Three classes of origin: both, one, or none of the true
/// parents collected. The transmission error acts when pseudo-offspring are made; they are
/// allocated without it.
const SimulationFlow& NonSexedSimulation();

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulation/simulation_flow.h"

namespace kaldo {

/// The simulation with males and females. Four classes of origin: the true father collected or not,
/// the true mother collected or not. Pseudo-offspring are allocated with the run's own error model.
const SimulationFlow& SexedSimulation();

}  // namespace kaldo

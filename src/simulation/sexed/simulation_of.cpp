// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/sexed/simulation_of.h"

#include "simulation/non_sexed_simulation.h"
#include "simulation/sexed/sexed_simulation.h"

namespace kaldo {

const SimulationFlow& SimulationOf(Flow flow) {
  return flow == Flow::kSexed ? SexedSimulation() : NonSexedSimulation();
}

}  // namespace kaldo

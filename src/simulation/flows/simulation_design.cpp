// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/flows/simulation_design.h"

namespace kaldo {

const SimulationDesign& DesignOf(Flow flow) {
  static const SimulationDesign non_sexed = NonSexedDesign();
  static const SimulationDesign sexed = SexedDesign();
  return flow == Flow::kSexed ? sexed : non_sexed;
}

}  // namespace kaldo

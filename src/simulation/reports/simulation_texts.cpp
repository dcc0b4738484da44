// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/simulation_texts.h"

namespace kaldo {

const SimulationTexts& TextsOf(Flow flow) {
  static const SimulationTexts non_sexed = NonSexedTexts();
  static const SimulationTexts sexed = SexedTexts();
  return flow == Flow::kSexed ? sexed : non_sexed;
}

}  // namespace kaldo

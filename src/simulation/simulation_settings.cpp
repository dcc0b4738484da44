// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_settings.h"

namespace kaldo {

KeptFiles KeptFilesOf(const SimulationSettings& settings) {
  const bool by_default = settings.flow == Flow::kNonSexed;
  return settings.keep.value_or(KeptFiles{by_default, by_default, false});
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "allocation/full_check.h"
#include "runs/setting.h"
#include "simulation/simulation_input.h"

namespace kaldo {

/// The full check of a simulation, and its input where that is sound.
struct SimulationCheck : FullCheck {
  SimulationSettings settings;  ///< as far as they could be read
  std::optional<SimulationInput> input;
};

/// Tests what was typed behind `kaldo simulate` and the files that it names, as CheckAllocation
/// does.
SimulationCheck CheckSimulation(const TypedSettings& typed, bool may_replace_other_flow,
                                FileSource& source);

}  // namespace kaldo

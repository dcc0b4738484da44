// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "allocation/allocation_run.h"
#include "simulation/simulation_run.h"

namespace kaldo {

// Finished runs with their settings. The tables of a window read from them for as long as they
// live.

struct FinishedAllocation {
  AllocationSettings settings;
  AllocationRun run;
};
using SharedAllocation = std::shared_ptr<const FinishedAllocation>;

struct FinishedSimulation {
  SimulationSettings settings;
  SimulationRun run;
};
using SharedSimulation = std::shared_ptr<const FinishedSimulation>;

}  // namespace kaldo

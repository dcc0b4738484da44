// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "allocation/allocation_run.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// The short result of a run for other programs, as docs/file-formats.md describes it. `exports`
/// are the further files written.
std::string ResultJson(const AllocationSettings& settings, const AllocationRun& run,
                       const std::vector<std::string>& exports);
std::string ResultJson(const SimulationSettings& settings, const SimulationRun& run,
                       const std::vector<std::string>& exports);

}  // namespace kaldo

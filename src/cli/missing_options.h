// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "allocation/allocation_settings.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// The Problem with the options of all names that are missing, if it tells of a missing name: of
/// files and, for a run, of the project.
Problem WithMissingOptions(Problem problem, const AllocationSettings& settings, bool is_run = true);
Problem WithMissingOptions(Problem problem, const SimulationSettings& settings, bool is_run = true);

}  // namespace kaldo

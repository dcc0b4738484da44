// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tl/expected.hpp>

#include "runs/run_record.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// The names of the simulation flows in run records.
inline constexpr std::string_view kNonSexedSimulationFlow = "simulation, non-sexed";
inline constexpr std::string_view kSexedSimulationFlow = "simulation, sexed";

std::string_view SimulationFlowName(Flow flow);

/// The record of a finished simulation, with the seed that was used.
RunRecord RecordOf(const SimulationSettings& settings, const SimulationInput& input,
                   const SimulationResult& result);

/// The settings of a recorded simulation of either flow, the seed among them. A setting that is
/// missing or of the wrong kind is a Problem; `path` names the record in it.
tl::expected<SimulationSettings, Problem> SimulationSettingsOf(const RunRecord& record,
                                                               const std::string& path);

/// The same as DifferenceOfAllocations().
std::optional<std::string> DifferenceOfSimulations(const RunRecord& then, const RunRecord& now);

}  // namespace kaldo

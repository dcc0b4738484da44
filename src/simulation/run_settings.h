// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <variant>

#include <tl/expected.hpp>

#include "allocation/allocation_settings.h"
#include "runs/run_record.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// The settings of a run of any flow.
using RunSettings = std::variant<AllocationSettings, SimulationSettings>;

/// Whether the record is of one of the four flows, and not of a program to come.
bool HasKnownFlow(const RunRecord& record);

/// The settings of a recorded run. A flow that is not known, and a setting that is missing or of
/// the wrong kind, is a Problem; `path` names the record in it.
tl::expected<RunSettings, Problem> RunSettingsOf(const RunRecord& record, const std::string& path);

}  // namespace kaldo

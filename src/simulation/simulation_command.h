// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "base/alike.h"
#include "base/warning.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// The settings of what was typed behind `kaldo simulate`. Whether parents are real or drawn
/// follows from which of them were given.
tl::expected<SimulationSettings, Problem> SimulationFrom(const TypedSettings& typed);

/// Told first of a run without a project, with all options that are missing.
std::optional<Problem> MissingProject(const TypedSettings& typed);

/// The same with every fault of what was typed, and the settings without what is at fault.
SimulationSettings ReadableSimulation(const TypedSettings& typed, AlikeGroups<Problem>& faults);

/// The options that were typed and do nothing with what else is: those of another strategy for the
/// subsets of loci, each with what it goes with. `all` has the settings taken from elsewhere, too.
std::optional<Warning> WarnOfOptionsWithoutEffect(const TypedSettings& typed,
                                                  const TypedSettings& all);

/// The command line of a simulation, `kaldo simulate --project ...`: typed into a shell in the same
/// working folder it repeats the run. Without a seed the clock sets it, here as there: put in the
/// seed that the run told to get the same pseudo-offspring. What is as it is by default is left
/// out, and so is the number of threads, which changes nothing.
std::string CommandOf(const SimulationSettings& settings);

}  // namespace kaldo

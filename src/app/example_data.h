// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <tl/expected.hpp>

#include "allocation/allocation_settings.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// The folder of the examples in the working folder: copies of the files, and their results.
inline constexpr std::string_view kExampleFolder = "kaldo-example";

/// Copies the example files of a flow into the working folder, unless they are there already, and
/// tells the settings of a run with them. The error tells why a file could not be written.
tl::expected<AllocationSettings, std::string> AllocationExample(Flow flow);
tl::expected<SimulationSettings, std::string> SimulationExample(Flow flow);

}  // namespace kaldo

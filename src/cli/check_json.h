// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "allocation/full_check.h"
#include "simulation/run_forecast.h"

namespace kaldo {

/// All of a check for other programs, with what a simulation will do, as docs/file-formats.md
/// describes it.
std::string JsonText(const FullCheck& check, const std::optional<RunForecast>& forecast = {});

}  // namespace kaldo

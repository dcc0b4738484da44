// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/full_check.h"
#include "simulation/run_forecast.h"

namespace kaldo {

/// Every fault: the sentence and then the detail of each case, as a run tells its first one. Of
/// very many alike the first are told, and how many more there are.
std::string FaultsText(const FullCheck& check);

/// What a simulation will do and how long it will take.
std::string ForecastText(const RunForecast& forecast);

/// A table of the loci, and what a run would find in its project folder.
std::string ContentsText(const FullCheck& check);

}  // namespace kaldo

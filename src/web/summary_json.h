// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "web/finished_runs.h"
#include "web/json.h"

namespace kaldo {

/// What came out of a run, in words and charts: {"title", "headline", "notes", "check", "warnings",
/// "text", "command", "charts", "tables"}. "check" are the offspring to be looked at with their
/// places and the reason; "text" is what the command line tells; "tables" are the names that
/// ResultTableJson() knows. Bars stand in "bars" of a chart, lines in "lines" over "labels". A
/// simulation has "trial", too: what it says of an allocation with its settings.
Json SummaryJson(const ShownAllocation& allocation);
Json SummaryJson(const ShownSimulation& simulation);

/// A table of the results by its name; null where there is none of that name.
Json ResultTableJson(const ShownAllocation& allocation, std::string_view name);
Json ResultTableJson(const ShownSimulation& simulation, std::string_view name);

}  // namespace kaldo

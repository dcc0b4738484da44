// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tl/expected.hpp>

#include "runs/recorded_reports.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// A finished simulation as its reports tell it; nothing is simulated. "Summary.xls" has how often
/// decisions were correct, by iteration and origin, and "Subsets.tsv", where there were subsets,
/// their estimated probabilities. The figures have the digits of the reports, six or eight.
///
/// What no report tells is not a number, or empty: without subsets the standard errors, the
/// estimates of single origins and those of allocations that may never have been made, and always
/// the allocations behind the figures (`average`, `rows`, `table`, `states`, `scan`,
/// `reliability`).
///
/// `settings` has the files where they are now, with the recorded contents. A report that is
/// missing, was changed or cannot be understood is a Problem.
tl::expected<SimulationRun, Problem> ReopenSimulation(const SimulationSettings& settings,
                                                      const RunRecord& record,
                                                      const RecordedReports& reports);

}  // namespace kaldo

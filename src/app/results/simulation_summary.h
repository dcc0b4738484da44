// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/results/chart_data.h"
#include "app/results/summary_page.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// The correct decisions of one class of origin in every iteration of the last subset of loci.
struct Correctness {
  QString name;                ///< "C X U", "GLOBAL"
  QString text;                ///< what the class is
  std::int32_t offspring = 0;  ///< of the class, in an iteration
  std::vector<double> values;  ///< one per iteration; none where the class has no pseudo-offspring
  std::optional<Spread> spread;
};

/// All classes in their order, and GLOBAL behind them.
std::vector<Correctness> CorrectnessOf(Flow flow, const SimulationResult& result);

/// What was simulated, what came out, and the files in `folder`.
Summary SummaryOf(const SimulationSettings& settings, const SimulationRun& run,
                  const QString& folder);

BarChart CorrectnessChart(const SimulationSettings& settings,
                          const std::vector<Correctness>& classes);
DataTable CorrectnessTable(const std::vector<Correctness>& classes);

/// Every estimated probability after each locus of a cumulative sequence: a line for each kind of
/// allocation in the population, and one for any allocation of the pseudo-offspring that were made.
LineChart SequenceChart(Flow flow, const SimulationRun& run);

/// The estimated probabilities of the last subset of loci: in the population as a chart; of all
/// scopes, with their deviations, errors and 95 % intervals, as a table.
BarChart EstimatesChart(const SimulationSettings& settings, const SimulationResult& result);
DataTable EstimatesTable(Flow flow, const SimulationResult& result);

/// A number as the reports show it; "NA" where it is none.
QString NumberOrNone(double number);

}  // namespace kaldo

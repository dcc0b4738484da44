// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/scan.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/figures/allocation_figures.h"
#include "simulation/figures/origin_statistics.h"
#include "simulation/figures/spread.h"
#include "simulation/flows/simulation_design.h"

namespace kaldo {

namespace {

SimulationSettings WithUncollected(SimulationSettings settings, double uncollected) {
  for (ParentalSet& set : settings.sets) {
    set.uncollected = uncollected;
    if (settings.flow == Flow::kSexed) {
      set.estimated_uncollected = uncollected;
    }
  }
  return settings;
}

/// The standard error of a mean over iterations, root of (sum of squared differences / (n (n -
/// 1))).
std::optional<double> StandardError(const std::vector<double>& values) {
  if (values.size() < 2) {
    return std::nullopt;
  }
  const Spread spread = SpreadOf(values, SpreadKind::kDifferences);
  return spread.deviation / std::sqrt(static_cast<double>(values.size() - 1));
}

}  // namespace

bool IsScanWanted(const SimulationSettings& settings) {
  return !settings.scan_tolerance.empty() || !settings.scan_uncollected.empty();
}

std::vector<OffsetTolerance> ScannedTolerances(const SimulationSettings& settings) {
  std::vector<OffsetTolerance> tolerances;
  tolerances.reserve(settings.scan_tolerance.size() + 1);
  for (const std::int32_t tolerance : settings.scan_tolerance) {
    tolerances.emplace_back(tolerance);
  }
  if (tolerances.empty()) {
    tolerances.push_back(settings.tolerance);
  }
  return tolerances;
}

std::vector<ScannedRun> ScannedRuns(const SimulationSettings& settings,
                                    const SimulationInput& input) {
  if (settings.scan_uncollected.empty()) {
    return {{settings, input}};
  }
  std::vector<ScannedRun> runs;
  runs.reserve(settings.scan_uncollected.size());
  for (const double uncollected : settings.scan_uncollected) {
    ScannedRun run{WithUncollected(settings, uncollected), input};
    (void)DrawUncollected(run.settings, run.input);  // CheckScan has told what is wrong
    runs.push_back(std::move(run));
  }
  return runs;
}

std::optional<Problem> CheckScan(const SimulationSettings& settings, const SimulationInput& input) {
  for (const double uncollected : settings.scan_uncollected) {
    SimulationInput scanned = input;
    if (auto problem = DrawUncollected(WithUncollected(settings, uncollected), scanned)) {
      problem->found =
          fmt::format("with {} uncollected: {}", FormatDouble(uncollected), problem->found);
      return problem;
    }
  }
  return std::nullopt;
}

ScanRow ScanRowOf(const ScannedRun& run, OffsetTolerance tolerance,
                  const std::vector<IterationCounts>& iterations) {
  const SimulationDesign& design = DesignOf(run.settings.flow);
  const std::vector<ClassFigures> figures = FiguresOfIterations(design, iterations);
  const AllocationFigures average = AverageFigures(design, run.input.weights, figures);
  const CorrectProbabilities probabilities = EstimateProbabilities(average);
  ScanRow row;
  row.tolerance = tolerance;
  row.any = probabilities.any;
  row.to_uncollected = probabilities.to_uncollected;
  for (std::size_t set = 0; set < run.settings.Sets().size(); ++set) {
    row.uncollected.push_back(run.settings.sets.at(set).uncollected);
    row.to_collected.push_back(probabilities.to_collected.at(set));
  }
  std::vector<double> correct;
  correct.reserve(figures.size());
  for (const ClassFigures& iteration : figures) {
    correct.push_back(WeighFigures(design, run.input.weights, iteration).correct);
  }
  row.any_error = StandardError(correct);
  for (const OriginStatistics& origin : StatisticsByOrigin(design, run.input.weights, iterations)) {
    row.by_class.push_back(origin.is_empty ? std::nullopt
                                           : std::optional(origin.correct.spread.mean));
  }
  row.by_class.pop_back();  // of all classes together: `any`
  return row;
}

void MarkBest(std::size_t tolerances, std::vector<ScanRow>& rows) {
  const std::size_t compared = tolerances > 1 ? tolerances : rows.size();
  for (auto first = rows.begin(); first != rows.end();) {
    const auto end = first + static_cast<std::ptrdiff_t>(compared);
    std::max_element(first, end, [](const ScanRow& one, const ScanRow& other) {
      return one.any < other.any;
    })->is_best = true;
    first = end;
  }
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "simulation/iteration_counts.h"
#include "simulation/simulation_input.h"

namespace kaldo {

// A scan repeats a simulation for several tolerances, and for several numbers of uncollected
// parents, from the same seed: which tolerance do these loci bear, and how much do the figures hang
// on an estimate that nobody can test?

/// Whether the user wants one.
bool IsScanWanted(const SimulationSettings& settings);

/// The tolerances of a scan: those that were told, or that of the run. They judge the same pairs of
/// the same pseudo-offspring.
std::vector<OffsetTolerance> ScannedTolerances(const SimulationSettings& settings);

/// A simulation of a scan.
struct ScannedRun {
  SimulationSettings settings;
  SimulationInput input;
};

/// One simulation for each number of uncollected parents that was told, or that of the run alone.
/// Sexed: so many of each sex are drawn and estimated to be there.
std::vector<ScannedRun> ScannedRuns(const SimulationSettings& settings,
                                    const SimulationInput& input);

/// Tests the numbers of a scan with the input of the run.
std::optional<Problem> CheckScan(const SimulationSettings& settings, const SimulationInput& input);

/// What one simulation of a scan found. Figures are shares from 0 to 1.
struct ScanRow {
  OffsetTolerance tolerance;
  std::vector<double> uncollected;   ///< by parental set
  double any = 0;                    ///< that any allocation is correct, in the population
  std::optional<double> any_error;   ///< its standard error; nothing of a single iteration
  std::vector<double> to_collected;  ///< that one to a collected parent is, by parental set
  double to_uncollected = 0;         ///< that one to an uncollected parent is
  std::vector<std::optional<double>> by_class;  ///< as `any`; nothing for an empty class
  bool is_best = false;
};

/// The row of a simulation.
ScanRow ScanRowOf(const ScannedRun& run, OffsetTolerance tolerance,
                  const std::vector<IterationCounts>& iterations);

/// Marks the best row: that of the highest probability, the first of them. With several tolerances
/// the best is marked for every number of uncollected parents, which is no choice of the user's.
void MarkBest(std::size_t tolerances, std::vector<ScanRow>& rows);

}  // namespace kaldo

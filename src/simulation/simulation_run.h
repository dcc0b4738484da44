// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "base/run_observer.h"
#include "genotypes/stepping_condition.h"
#include "runs/workforce.h"
#include "simulation/figures/origin_statistics.h"
#include "simulation/figures/subset_figures.h"
#include "simulation/iteration_states.h"
#include "simulation/reliability.h"
#include "simulation/scan.h"
#include "simulation/simulation_input.h"

namespace kaldo {

/// What a simulation found. All figures are shares from 0 to 1; whoever shows them only writes.
struct SimulationResult {
  std::uint32_t seed = 0;  ///< drawn from the calendar time unless it was given

  std::vector<SubsetFigures> subsets;  ///< in the order in which they ran
  bool criterion_reached = false;      ///< by the last of them

  /// Of the last subset: class of origin by class, and behind them all classes together.
  std::vector<OriginStatistics> origins;

  /// Of the last subset: where in the stream of random numbers each iteration starts.
  std::vector<IterationStart> states;

  /// Of the last subset, all iterations together; nothing where this was not wanted or means
  /// nothing.
  std::optional<Reliability> reliability;

  /// Row by row, the numbers of uncollected parents outside and the tolerances inside; see scan.h.
  std::vector<ScanRow> scan;

  SteppingReport stepping;  ///< of the last iteration

  std::string folder;    ///< the working folder at the start
  unsigned threads = 1;  ///< that computed, of all processes together
  std::chrono::system_clock::time_point started;
  std::chrono::duration<double> duration{};

  const SubsetFigures& LastSubset() const { return subsets.back(); }
  const OriginStatistics& Global() const { return origins.back(); }
};

/// A finished simulation.
struct SimulationRun {
  SimulationInput input;
  SimulationResult result;
};

/// Makes the further files of a simulation.
using SimulationExports = RunExports<SimulationSettings, SimulationInput, SimulationResult>;

/// Simulates and writes nothing. The seed is that of the settings.
SimulationResult Simulate(const SimulationSettings& settings, const SimulationInput& input,
                          RunObserver& observer, Workforce& workforce);

/// The whole run: checks, simulates, and writes all reports and the run record, each whole or not
/// at all. Whether it is sexed is told by the settings. Iterations run in parallel: each starts at
/// a state of the random numbers known beforehand, so that the result is the same for any
/// workforce. Problems, failures, stops, workforce and exports are as in RunAllocation.
tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   RunObserver& observer);
tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   RunObserver& observer, Workforce& workforce,
                                                   SimulationExports* exports = nullptr);

/// The run with an input that was loaded before with these settings; seed, outputs and threads may
/// have been chosen since.
SimulationRun RunSimulation(const SimulationSettings& wanted, SimulationInput input,
                            RunObserver& observer, Workforce& workforce,
                            SimulationExports* exports = nullptr);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "base/run_observer.h"
#include "genotypes/stepping_condition.h"
#include "runs/workforce.h"
#include "simulation/figures.h"
#include "simulation/simulation_flow.h"
#include "simulation/simulation_input.h"

namespace kaldo {

/// What a simulation found with one subset of loci.
struct SubsetFigures {
  LocusSubset loci;             ///< in order of entry
  std::vector<double> figures;  ///< weighted and averaged, as the flow orders them
};

/// What a simulation found.
struct SimulationResult {
  std::uint32_t seed = 0;  ///< drawn from the calendar time unless it was given

  std::vector<SubsetFigures> subsets;  ///< in the order in which they ran
  bool criterion_reached = false;      ///< by the last of them

  // Of the last subset: the counts of every iteration and where each starts in the stream.
  std::vector<IterationCounts> iterations;
  std::vector<std::uint32_t> states;

  std::string subset_statistics;  ///< their tables, where wanted

  SteppingReport stepping;  ///< of the last iteration

  unsigned threads = 1;  ///< that computed, of all processes together
  std::chrono::system_clock::time_point started;
  std::chrono::duration<double> duration{};

  const SubsetFigures& LastSubset() const { return subsets.back(); }
};

/// Runs all subsets and iterations. Iterations run in parallel: each starts at a state of the
/// random numbers known beforehand, so that the result is the same for any workforce.
SimulationResult Simulate(const SimulationSettings& settings, const SimulationInput& input,
                          const SimulationFlow& flow, RunObserver& observer, Workforce& workforce);

/// A finished simulation.
struct SimulationRun {
  SimulationInput input;
  SimulationResult result;
};

/// The whole run: checks, simulates, and writes all reports and the run record, each whole or not
/// at all. Problems, failures, stops and the workforce are as in RunAllocation.
tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   const SimulationFlow& flow,
                                                   RunObserver& observer);
tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   const SimulationFlow& flow,
                                                   RunObserver& observer, Workforce& workforce);

}  // namespace kaldo

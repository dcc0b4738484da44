// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_run.h"

#include <fmt/format.h>

#include "genotypes/parallel_for.h"
#include "simulation/iteration_states.h"
#include "simulation/simulated_iteration.h"
#include "simulation/simulation_reports.h"
#include "simulation/subset_statistics.h"

namespace kaldo {

namespace {

std::vector<IterationCounts> RunIterations(const SimulationSettings& settings,
                                           const SimulationInput& input,
                                           const SimulationDesign& design, const LocusSubset& loci,
                                           std::span<const std::uint32_t> states, unsigned threads,
                                           RunObserver& observer) {
  std::vector<IterationCounts> iterations(states.size());
  ParallelFor(states.size(), threads, [&] {
    SimulatedIteration iteration(settings, input, design);
    iteration.UseLoci(loci);
    return [&, iteration = std::move(iteration)](std::size_t i) mutable {
      if (observer.StopRequested()) {
        throw RunStopped();
      }
      iterations[i] = iteration.Run(states[i], observer);
      observer.OnSteps(1);
    };
  });
  return iterations;
}

/// The seed of a run that was given none: the calendar time in seconds.
std::uint32_t TimeSeed(std::chrono::system_clock::time_point time) {
  return static_cast<std::uint32_t>(std::chrono::system_clock::to_time_t(time));
}

/// The alleles of the last iteration, which the stepping report looks at.
SteppingReport SteppingOfLastIteration(const SimulationSettings& settings,
                                       const SimulationInput& input, const SimulationDesign& design,
                                       const SimulationResult& result,
                                       const RunObserver& observer) {
  SimulatedIteration iteration(settings, input, design);
  iteration.UseLoci(result.LastSubset().loci);
  iteration.Run(result.states.back(), observer);
  return CheckStepping(input.loci, iteration.CataloguesOfAll());
}

}  // namespace

SimulationResult Simulate(const SimulationSettings& settings, const SimulationInput& input,
                          const SimulationFlow& flow, RunObserver& observer) {
  const SimulationDesign& design = flow.Design();
  SimulationResult result;
  result.started = std::chrono::system_clock::now();
  const auto clock_start = std::chrono::steady_clock::now();
  result.seed = settings.seed.value_or(TimeSeed(result.started));
  result.threads = NumberOfThreads(settings.threads);

  IterationStates stream(input, design, result.seed);
  const auto iterations = static_cast<std::size_t>(settings.iterations);
  const std::size_t subsets = input.subsets.Count();
  observer.OnPart("Simulating", subsets * iterations);
  for (std::size_t subset = 0; subset < subsets && !result.criterion_reached; ++subset) {
    if (subsets > 1) {
      observer.OnNote(fmt::format("subset {} of {}", subset + 1, subsets));
    }
    const LocusSubset loci = input.subsets.At(subset);
    result.states = stream.Next(iterations);
    result.iterations =
        RunIterations(settings, input, design, loci, result.states, result.threads, observer);
    result.subsets.push_back({loci, WeightedFigures(flow, input, result.iterations)});
    if (settings.print_subset_statistics) {
      result.subset_statistics += SubsetStatistics(flow, input, loci, result.iterations);
    }
    result.criterion_reached =
        settings.strategy == LociStrategy::kMinimal &&
        result.LastSubset().figures[design.any_correct_figure] >= settings.criterion;
  }
  result.stepping = SteppingOfLastIteration(settings, input, design, result, observer);
  result.duration = std::chrono::steady_clock::now() - clock_start;
  return result;
}

tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   const SimulationFlow& flow,
                                                   RunObserver& observer) {
  if (settings.project.empty()) {
    Problem problem;
    problem.sentence = "Please enter name of project!";
    return tl::unexpected(std::move(problem));
  }
  auto input = LoadSimulationInput(settings, flow);
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  SimulationReports reports(settings, flow);
  SimulationResult result = Simulate(settings, *input, flow, observer);
  reports.Write(settings, *input, result, observer);
  return SimulationRun{std::move(*input), std::move(result)};
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_run.h"

#include "simulation/counts_plan.h"
#include "simulation/iteration_portions.h"
#include "simulation/reports/simulation_reports.h"
#include "simulation/simulated_iteration.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

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
                          const SimulationFlow& flow, RunObserver& observer, Workforce& workforce) {
  const SimulationDesign& design = flow.Design();
  SimulationResult result;
  result.started = std::chrono::system_clock::now();
  const auto clock_start = std::chrono::steady_clock::now();
  result.seed = settings.seed.value_or(TimeSeed(result.started));
  result.threads = workforce.Threads(settings.threads);

  const IterationTask task(settings, input, design, IterationProduct::kCounts);
  CountsPlan plan(settings, input, flow, result, observer);
  observer.OnPart(kSimulatingPart, plan.Groups() * plan.ItemsPerGroup());
  workforce.Do({kSimulatingPart, task, plan, [&] { return RecordOf(settings, input, result); }},
               settings.threads, observer);
  result.stepping = SteppingOfLastIteration(settings, input, design, result, observer);
  result.duration = std::chrono::steady_clock::now() - clock_start;
  return result;
}

tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   const SimulationFlow& flow,
                                                   RunObserver& observer) {
  LocalThreads threads;
  return RunSimulation(settings, flow, observer, threads);
}

tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   const SimulationFlow& flow,
                                                   RunObserver& observer, Workforce& workforce) {
  if (settings.project.empty()) {
    return tl::unexpected(Problem{.kind = ProblemKind::kNoProject});
  }
  auto input = LoadSimulationInput(settings, flow, workforce.Files());
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  SimulationReports reports(settings, flow);
  SimulationResult result = Simulate(settings, *input, flow, observer, workforce);
  reports.Write(settings, *input, result, observer, workforce);
  return SimulationRun{std::move(*input), std::move(result)};
}

}  // namespace kaldo

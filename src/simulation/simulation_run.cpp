// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_run.h"

#include "base/this_process.h"
#include "runs/resuming_workforce.h"
#include "simulation/allocation_model.h"
#include "simulation/counts_plan.h"
#include "simulation/default_seed.h"
#include "simulation/iteration_portions.h"
#include "simulation/reliability_plan.h"
#include "simulation/reports/simulation_reports.h"
#include "simulation/scan_plan.h"
#include "simulation/simulated_iteration.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

void ScoreConfidence(const SimulationSettings& settings, const SimulationInput& input,
                     RunObserver& observer, Workforce& workforce, SimulationResult& result) {
  const IterationTask task(settings, input, IterationProduct::kReliability);
  ReliabilityPlan plan(result);
  observer.OnPart(kReliabilityPart, plan.ItemsPerGroup());
  workforce.Do({kReliabilityPart, task, plan, [&] { return RecordOf(settings, input, result); }},
               settings.threads, observer);
}

void Scan(const SimulationSettings& settings, const SimulationInput& input, RunObserver& observer,
          Workforce& workforce, SimulationResult& result) {
  const ScanTask task(settings, input);
  ScanPlan plan(settings, input, result);
  observer.OnPart(kScanPart, plan.Groups() * plan.ItemsPerGroup());
  workforce.Do({kScanPart, task, plan, [&] { return RecordOf(settings, input, result); }},
               settings.threads, observer);
}

/// Runs all subsets and iterations. A seed that was not given is that of the run to be resumed, if
/// there is one. Leaves the last iteration as it was made in `last`: the workers only tell their
/// counts, so it is made once more.
SimulationResult Simulate(const SimulationSettings& settings, const SimulationInput& input,
                          std::optional<std::uint32_t> unfinished_seed, SimulatedIteration& last,
                          RunObserver& observer, Workforce& workforce) {
  SimulationResult result;
  result.started = std::chrono::system_clock::now();
  const auto clock_start = std::chrono::steady_clock::now();
  const std::optional<std::uint32_t> seed = settings.seed ? settings.seed : unfinished_seed;
  result.seed = seed ? *seed : DefaultSeed(settings.random, result.started);
  result.folder = CurrentFolder();
  result.threads = workforce.Threads(settings.threads);

  const IterationTask task(settings, input, IterationProduct::kCounts);
  CountsPlan plan(settings, input, result, observer);
  observer.OnPart(kSimulatingPart, plan.Groups() * plan.ItemsPerGroup());
  workforce.Do({kSimulatingPart, task, plan, [&] { return RecordOf(settings, input, result); }},
               settings.threads, observer);
  result.origins =
      StatisticsByOrigin(DesignOf(settings.flow), input.weights, plan.LastIterations());

  last.UseLoci(result.LastSubset().loci);
  last.Run(result.states.back(), observer);
  if (settings.scores_confidence && !WarnOfNegative(ConfidenceModelOf(settings))) {
    ScoreConfidence(settings, input, observer, workforce, result);
  }
  if (IsScanWanted(settings)) {
    Scan(settings, input, observer, workforce, result);
  }
  result.stepping = CheckStepping(input.loci, last.CataloguesOfAll());
  result.duration = std::chrono::steady_clock::now() - clock_start;
  return result;
}

}  // namespace

SimulationResult Simulate(const SimulationSettings& settings, const SimulationInput& input,
                          RunObserver& observer, Workforce& workforce) {
  SimulatedIteration last(settings, input);
  return Simulate(settings, input, std::nullopt, last, observer, workforce);
}

tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   RunObserver& observer) {
  LocalThreads threads;
  return RunSimulation(settings, observer, threads);
}

tl::expected<SimulationRun, Problem> RunSimulation(const SimulationSettings& settings,
                                                   RunObserver& observer, Workforce& workforce,
                                                   SimulationExports* exports) {
  if (settings.project.empty()) {
    return tl::unexpected(Problem{.kind = ProblemKind::kNoProject});
  }
  auto input = LoadSimulationInput(settings, workforce.Files());
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  SimulationSettings completed = settings;
  if (exports != nullptr) {
    if (auto problem = exports->Prepare(completed, *input, workforce.Files())) {
      return tl::unexpected(std::move(*problem));
    }
  }
  return RunSimulation(completed, std::move(*input), observer, workforce, exports);
}

SimulationRun RunSimulation(const SimulationSettings& wanted, SimulationInput input,
                            RunObserver& observer, Workforce& workforce,
                            SimulationExports* exports) {
  SimulationSettings settings = wanted;
  if (exports == nullptr) {
    settings.also = {};
  }
  SimulationReports reports(settings, input, observer, exports);
  SimulatedIteration last(settings, input);
  ResumingWorkforce resuming(workforce, reports.Unfinished(), DifferenceOfSimulations);
  SimulationResult result =
      Simulate(settings, input, reports.Unfinished().Seed(), last, observer, resuming);
  reports.Write(settings, input, result, last, observer, resuming);
  return {std::move(input), std::move(result)};
}

}  // namespace kaldo

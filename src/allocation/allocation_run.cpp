// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_run.h"

#include <algorithm>

#include "allocation/allocation_reports.h"
#include "allocation/pair_searcher.h"
#include "genotypes/parallel_for.h"
#include "genotypes/unit_distance.h"

namespace kaldo {

namespace {

LociOfRun LociOfCombination(const AllocationInput& input, std::vector<LocusIndex> loci) {
  std::sort(loci.begin(), loci.end());
  LociOfRun run{std::move(loci), {}};
  for (const LocusIndex locus : run.loci) {
    run.unit_distances.push_back(UnitDistance(input.catalogues[locus.Value()].Sizes()));
  }
  return run;
}

std::vector<TransmissionMatrix> BuildMatrices(const ErrorModel& model,
                                              const AllocationInput& input) {
  std::vector<TransmissionMatrix> matrices;
  for (const AlleleCatalogue& catalogue : input.catalogues) {
    matrices.push_back(BuildMatrix(model, catalogue.Sizes()));
  }
  return matrices;
}

/// Allocates all offspring with the loci of one combination, each into its own place.
std::vector<AllocationOutcome> AllocateOffspring(const AllocationSettings& settings,
                                                 const AllocationInput& input,
                                                 const LociOfRun& loci,
                                                 std::span<const TransmissionMatrix> matrices,
                                                 unsigned threads, RunObserver& observer) {
  const Candidates candidates{settings.flow, input.groups, input.table.Names()};
  std::vector<AllocationOutcome> outcomes(input.NumberOfOffspring());
  ParallelFor(outcomes.size(), threads, [&] {
    PairSearcher searcher;
    searcher.Prepare(input.table, input.Parents().Size(), loci.loci, matrices, candidates);
    return [&, searcher = std::move(searcher)](std::size_t i) mutable {
      const Slot offspring{input.offspring.begin + static_cast<std::uint32_t>(i)};
      outcomes[i] = searcher.Search(offspring, observer);
      DecideSides(input.table, offspring, loci, settings.tolerance, outcomes[i]);
      observer.OnSteps(1);
    };
  });
  return outcomes;
}

}  // namespace

AllocationResult Allocate(const AllocationSettings& settings, const AllocationInput& input,
                          RunObserver& observer) {
  AllocationResult result;
  result.started = std::chrono::system_clock::now();
  const auto clock_start = std::chrono::steady_clock::now();
  result.threads = NumberOfThreads(settings.threads);
  result.stepping = CheckStepping(input.loci, input.catalogues);
  const auto matrices = BuildMatrices(settings.error_model, input);

  observer.OnPart("Allocating", input.combinations.size() * input.NumberOfOffspring());
  for (const auto& combination : input.combinations) {
    result.loci = LociOfCombination(input, combination);
    result.outcomes =
        AllocateOffspring(settings, input, result.loci, matrices, result.threads, observer);
    AllocationCounters counters;
    for (const AllocationOutcome& outcome : result.outcomes) {
      counters.Count(outcome);
    }
    result.counters.push_back(counters);
  }
  result.duration = std::chrono::steady_clock::now() - clock_start;
  return result;
}

std::string_view ClosingSentence(const AllocationResult& result) {
  return result.stepping.any_out_of_step ? kSteppingSentence : "Calculations completed!";
}

tl::expected<AllocationRun, Problem> RunAllocation(const AllocationSettings& settings,
                                                   RunObserver& observer) {
  if (settings.project.empty()) {
    Problem problem;
    problem.sentence = "Please enter name of project!";
    return tl::unexpected(std::move(problem));
  }
  auto input = LoadAllocationInput(settings);
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  // The reports are opened first: a folder that cannot be written to shows at once, not after
  // hours.
  AllocationReports reports(settings);
  AllocationResult result = Allocate(settings, *input, observer);
  reports.Write(settings, *input, result, observer);
  return AllocationRun{std::move(*input), std::move(result)};
}

}  // namespace kaldo

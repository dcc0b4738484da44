// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_run.h"

#include "allocation/allocation_confidence.h"
#include "allocation/allocation_portions.h"
#include "allocation/allocation_record.h"
#include "allocation/reports/allocation_reports.h"
#include "base/this_process.h"
#include "runs/resuming_workforce.h"

namespace kaldo {

AllocationResult Allocate(const AllocationSettings& settings, const AllocationInput& input,
                          RunObserver& observer, Workforce& workforce) {
  AllocationResult result;
  result.started = std::chrono::system_clock::now();
  const auto clock_start = std::chrono::steady_clock::now();
  result.folder = CurrentFolder();
  result.threads = workforce.Threads(settings.threads);
  result.stepping = CheckStepping(input.loci, input.catalogues);

  const AllocationTask task(settings, input);
  AllocationPlan plan(settings.flow, input, result);
  observer.OnPart(kAllocatingPart, input.combinations.size() * input.NumberOfOffspring());
  workforce.Do({kAllocatingPart, task, plan, [&] { return RecordOf(settings, input, result); }},
               settings.threads, observer);
  for (const AllocationCounters& counters : result.counters) {
    result.shares.push_back(SharesOf(settings.flow, counters));
  }
  if (settings.confidence.computed) {
    AddConfidence(settings, input, observer, workforce, result);
  }
  result.duration = std::chrono::steady_clock::now() - clock_start;
  return result;
}

std::string_view ClosingSentence(const AllocationResult& result) {
  return result.stepping.any_out_of_step ? kSteppingSentence : "Calculations completed!";
}

tl::expected<AllocationRun, Problem> RunAllocation(const AllocationSettings& settings,
                                                   RunObserver& observer) {
  LocalThreads threads;
  return RunAllocation(settings, observer, threads);
}

tl::expected<AllocationRun, Problem> RunAllocation(const AllocationSettings& settings,
                                                   RunObserver& observer, Workforce& workforce,
                                                   AllocationExports* exports) {
  if (settings.project.empty()) {
    return tl::unexpected(Problem{.kind = ProblemKind::kNoProject});
  }
  auto input = LoadAllocationInput(settings, workforce.Files());
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  AllocationSettings completed = settings;
  if (exports != nullptr) {
    if (auto problem = exports->Prepare(completed, *input, workforce.Files())) {
      return tl::unexpected(std::move(*problem));
    }
  }
  return RunAllocation(completed, std::move(*input), observer, workforce, exports);
}

AllocationRun RunAllocation(const AllocationSettings& wanted, AllocationInput input,
                            RunObserver& observer, Workforce& workforce,
                            AllocationExports* exports) {
  AllocationSettings settings = wanted;
  if (exports == nullptr) {
    settings.exports = {};
  }
  // The reports are opened first: a folder that cannot be written to shows at once, not after
  // hours.
  AllocationReports reports(settings, input, observer, exports);
  ResumingWorkforce resuming(workforce, reports.Unfinished(), DifferenceOfAllocations);
  AllocationResult result = Allocate(settings, input, observer, resuming);
  reports.Write(settings, input, result, observer);
  return {std::move(input), std::move(result)};
}

}  // namespace kaldo

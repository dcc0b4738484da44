// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

#include "allocation/allocation_input.h"
#include "base/run_observer.h"
#include "confidence/confidence_run.h"
#include "confidence/locus_quality.h"
#include "confidence/posterior.h"
#include "genotypes/stepping_condition.h"
#include "method/allocation_decision.h"
#include "method/allocation_shares.h"
#include "runs/workforce.h"

namespace kaldo {

/// What an allocation found.
struct AllocationResult {
  /// One per combination of loci, in their order; a run without a sequence has one.
  std::vector<AllocationCounters> counters;
  std::vector<AllocationShares> shares;  ///< beside `counters`

  /// Of the combinations before the last one: one pair per offspring, in file order. Empty where
  /// the run was opened again, because no report tells them.
  std::vector<std::vector<ReportedParents>> earlier_pairs;

  // Of the last combination:
  LociOfRun loci;
  std::vector<AllocationOutcome> outcomes;  ///< one per offspring, in file order

  SteppingReport stepping;

  /// How sure the allocation is, with the loci of the last combination; nothing where this was not
  /// wanted.
  std::optional<ConfidenceResult> confidence;
  std::vector<LocusQuality> loci_quality;  ///< beside `loci.loci`; empty where it was not wanted

  /// True where the run computed how sure it is, but a run that was opened again has lost the
  /// report that tells it.
  bool confidence_is_lost = false;

  std::string folder;    ///< the working folder at the start
  unsigned threads = 1;  ///< that computed, of all processes together
  std::chrono::system_clock::time_point started;
  std::chrono::duration<double> duration{};

  const AllocationShares& LastShares() const { return shares.back(); }
};

/// The part of a run in which offspring are allocated.
inline constexpr std::string_view kAllocatingPart = "Allocating";

/// Allocates every offspring, for every combination of loci in turn. The result is the same for any
/// workforce.
AllocationResult Allocate(const AllocationSettings& settings, const AllocationInput& input,
                          RunObserver& observer, Workforce& workforce);

/// The sentence that closes the run: "Calculations completed!", or that some loci are out of step.
std::string_view ClosingSentence(const AllocationResult& result);

/// A finished run.
struct AllocationRun {
  AllocationInput input;
  AllocationResult result;
};

/// Makes the further files of an allocation.
using AllocationExports = RunExports<AllocationSettings, AllocationInput, AllocationResult>;

/// The whole run: checks, allocates, and writes all reports and the run record into the project
/// folder, each whole or not at all. A Problem means that nothing was done. Throws RunFailure when
/// a report cannot be written and RunStopped when the observer asks to stop; the reports of earlier
/// runs then are as they were. Without a workforce the threads of this process do it. Without
/// exports no further files are written, nor does the run record tell of any.
tl::expected<AllocationRun, Problem> RunAllocation(const AllocationSettings& settings,
                                                   RunObserver& observer);
tl::expected<AllocationRun, Problem> RunAllocation(const AllocationSettings& settings,
                                                   RunObserver& observer, Workforce& workforce,
                                                   AllocationExports* exports = nullptr);

/// The run with an input that was loaded before with these settings. The record tells the contents
/// that were loaded, whatever has become of the files since. The exports have been prepared.
AllocationRun RunAllocation(const AllocationSettings& wanted, AllocationInput input,
                            RunObserver& observer, Workforce& workforce,
                            AllocationExports* exports = nullptr);

}  // namespace kaldo

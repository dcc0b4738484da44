// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <tl/expected.hpp>

#include "allocation/allocation_run.h"
#include "runs/recorded_reports.h"

namespace kaldo {

/// What the reports of an allocation tell.
struct ReopenedAllocation {
  AllocationRun run;

  /// Why how sure the allocations are, or what the loci are worth, is not in the run.
  std::optional<Problem> without_certainty;
};

/// A finished allocation, read from its input files and its reports instead of running it again.
/// No pair is searched: "Max like pairs.txt" tells the pairs of every offspring, "Allocation
/// results.xls" the parents, and what follows from a pair (offsets, errors, its likelihood) is
/// worked out from the genotypes as the run did. What was read is taken only if the reports written
/// from it are the recorded ones, line by line.
///
/// Of an offspring with more than five equally likely pairs the reports tell the first one alone,
/// and so does what comes back. How sure the allocations are is read, too, see
/// AddRecordedConfidence; where that cannot be, the rest comes back without it.
///
/// `then` has the settings as recorded, `now` the same with the files where they are; their
/// contents must be the recorded ones. A report that is missing, was changed or does not fit the
/// files is a Problem. Throws RunStopped when the observer asks.
tl::expected<ReopenedAllocation, Problem> ReopenAllocation(const AllocationSettings& then,
                                                           const AllocationSettings& now,
                                                           const RunRecord& record,
                                                           const RecordedReports& reports,
                                                           RunObserver& observer);

/// Whether an offspring is one of those of which not all pairs are told.
bool IsOnlyFirstPairTold(const AllocationOutcome& outcome);

}  // namespace kaldo

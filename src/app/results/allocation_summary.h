// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "allocation/allocation_run.h"
#include "app/results/chart_data.h"
#include "app/results/summary_page.h"

namespace kaldo {

/// So many offspring to check are listed; a last line tells of all others.
inline constexpr std::size_t kMostToCheck = 200;

/// What was found, what to check, what was run, and the files in `folder`.
Summary SummaryOf(const AllocationSettings& settings, const AllocationRun& run,
                  const QString& folder);

/// The share of offspring in each class, hatched where it is tied or open, and the same with
/// numbers and the shares of the single allocations.
BarChart ProportionsChart(Flow flow, const AllocationResult& result);
DataTable ProportionsTable(const AllocationShares& shares);

/// The shares after each locus of a cumulative sequence.
LineChart SequenceChart(const AllocationInput& input, const AllocationResult& result);

}  // namespace kaldo

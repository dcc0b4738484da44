// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tl/expected.hpp>

#include "allocation/allocation_run.h"
#include "runs/run_record.h"

namespace kaldo {

/// The names of the allocation flows in run records.
inline constexpr std::string_view kNonSexedAllocationFlow = "allocation, non-sexed";
inline constexpr std::string_view kSexedAllocationFlow = "allocation, sexed";

std::string_view AllocationFlowName(Flow flow);

/// The record of a finished run.
RunRecord RecordOf(const AllocationSettings& settings, const AllocationInput& input,
                   const AllocationResult& result);

/// The settings of a recorded allocation of either flow. A setting that is missing or of the wrong
/// kind is a Problem; `path` names the record in it.
tl::expected<AllocationSettings, Problem> SettingsOf(const RunRecord& record,
                                                     const std::string& path);

/// How the settings of one recorded allocation lead to other results than those of another; see
/// FirstDifference().
std::optional<std::string> DifferenceOfAllocations(const RunRecord& then, const RunRecord& now);

}  // namespace kaldo

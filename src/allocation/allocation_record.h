// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tl/expected.hpp>

#include "allocation/allocation_run.h"
#include "genotypes/run_record.h"

namespace kaldo {

/// The names of the allocation flows in run records.
inline constexpr std::string_view kNonSexedAllocationFlow = "allocation, non-sexed";
inline constexpr std::string_view kSexedAllocationFlow = "allocation, sexed";

/// The record of a finished run.
RunRecord RecordOf(const AllocationSettings& settings, const AllocationInput& input,
                   const AllocationResult& result);

/// The settings of a recorded allocation. A record of another flow, or one in which a setting is
/// missing, is a Problem; `path` names the record in it.
tl::expected<AllocationSettings, Problem> SettingsOf(const RunRecord& record,
                                                     const std::string& path);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "allocation/allocation_settings.h"
#include "base/shell_text.h"

namespace kaldo {

/// The command line of an allocation, `kaldo allocate --project ...`: typed into a shell in the
/// same working folder it repeats the run. What is as it is by default is left out, and so is the
/// number of threads, which changes nothing. A locus whose name holds a comma cannot be told from
/// two loci in `--use`.
std::string CommandOf(const AllocationSettings& settings);

/// The options that allocations and simulations share: tolerance, error model and loci in use.
void AddMethodOptions(ShellCommand& command, OffsetTolerance tolerance,
                      const ErrorModel& error_model,
                      const std::optional<std::vector<std::string>>& loci_in_use);

/// The positions of a cumulative sequence between commas.
std::string SequenceOption(const std::vector<std::int32_t>& sequence);

}  // namespace kaldo

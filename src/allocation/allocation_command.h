// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <tl/expected.hpp>

#include "allocation/allocation_settings.h"
#include "base/alike.h"

namespace kaldo {

/// The settings of what was typed behind `kaldo allocate`. The texts are read here; what they mean
/// together is tested by the run. A file that was not given and one with an empty name are told by
/// the same sentence.
tl::expected<AllocationSettings, Problem> AllocationFrom(const TypedSettings& typed);

/// The same with every fault of what was typed, and the settings without what is at fault.
AllocationSettings ReadableAllocation(const TypedSettings& typed, AlikeGroups<Problem>& faults);

/// The command line of an allocation, `kaldo allocate --project ...`: typed into a shell in the
/// same working folder it repeats the run. What is as it is by default is left out, and so is the
/// number of threads, which changes nothing.
std::string CommandOf(const AllocationSettings& settings);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "allocation/allocation_input.h"
#include "allocation/full_check.h"
#include "runs/setting.h"

namespace kaldo {

/// The full check of an allocation, and its input where that is sound.
struct AllocationCheck : FullCheck {
  AllocationSettings settings;  ///< as far as they could be read
  std::optional<AllocationInput> input;
};

/// Tests what was typed behind `kaldo allocate` and the files that it names. Nothing is written. A
/// choice at fault is told and put aside, so that what follows it can be tested, too.
AllocationCheck CheckAllocation(const TypedSettings& typed, bool may_replace_other_flow,
                                FileSource& source);

}  // namespace kaldo

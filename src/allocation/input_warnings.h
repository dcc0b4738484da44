// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "allocation/allocation_input.h"
#include "base/warning.h"

namespace kaldo {

/// What is odd about the files and choices of an allocation that can run: every case of names that
/// mislead, of individuals met twice, and of figures without a meaning.
std::vector<Warning> InputWarnings(const AllocationSettings& settings, const AllocationFiles& files,
                                   const AllocationInput& input);

}  // namespace kaldo

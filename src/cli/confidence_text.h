// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// How sure an allocation is, in a few lines for standard output; empty where this was not wanted.
std::string ConfidenceText(const AllocationSettings& settings, const AllocationRun& run);

}  // namespace kaldo

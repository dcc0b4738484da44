// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

#include "method/allocation_counters.h"
#include "method/flow.h"

namespace kaldo {

/// The classes of a pair allocation, from both parents collected to none: "2 C", "C + UC", "2 UC",
/// or "CM + CF", "CM + UCF", "UCM + CF", "UCM + UCF".
std::vector<QString> ClassNames(Flow flow);

/// How many offspring are in each of them.
std::vector<double> ClassNumbers(Flow flow, const AllocationCounters& counters);

/// The class of one offspring, by its place among them.
std::size_t ClassOf(Flow flow, const AllocationOutcome& outcome);

/// True where several pairs explain the offspring equally well, so that the order of the files
/// decided.
bool HasSeveralPairs(const AllocationOutcome& outcome);

}  // namespace kaldo

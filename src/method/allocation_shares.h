// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "method/allocation_counters.h"
#include "method/flow.h"

namespace kaldo {

/// One proportion of an allocation.
struct AllocationShare {
  std::string_view name;  ///< "sides collected", "collected male", "2 C", "CM + UCF"
  double number = 0;      ///< of sides or of offspring
  double share = 0;       ///< of all sides or offspring; the reports add it up class by class
  double quotient = 0;    ///< the same divided once; may differ from `share` in its last bit
};

/// The proportions of an allocation. Without offspring they are not numbers.
struct AllocationShares {
  /// Allocations of single parents to a collected one. Non-sexed: "sides collected", of the 2n
  /// sides. Sexed: "collected male" and "collected female", each of the n offspring.
  std::vector<AllocationShare> singles;

  /// Offspring by the allocation of both parents, in the order of PairClassNames().
  std::vector<AllocationShare> pairs;

  /// Share of the 2n sides that go to a collected parent, in either flow.
  double sides_collected = 0;
};

AllocationShares SharesOf(Flow flow, const AllocationCounters& counters);

/// The classes of a pair allocation, from both parents collected to none: "2 C", "C + UC", "2 UC",
/// or "CM + CF", "CM + UCF", "UCM + CF", "UCM + UCF".
std::vector<std::string_view> PairClassNames(Flow flow);

/// How many offspring are in each of them.
std::vector<double> PairClassNumbers(Flow flow, const AllocationCounters& counters);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "method/allocation_outcome.h"

namespace kaldo {

/// How many offspring of a run have which sides allocated to a collected parent, by their first
/// pair, also where other pairs tie with it. An offspring without a pair counts as having none. In
/// the sexed flow parent 1 is the male. The counts are whole numbers kept as doubles, since all
/// that is done with them is to divide them.
struct AllocationCounters {
  double both_collected = 0;       ///< "2 C", "CM + CF"
  double only_par1_collected = 0;  ///< part of "C + UC"; "CM + UCF"
  double only_par2_collected = 0;  ///< part of "C + UC"; "UCM + CF"
  double none_collected = 0;       ///< "2 UC", "UCM + UCF"

  /// Adds one offspring, on which the sides must have been decided (DecideSides).
  void Count(const AllocationOutcome& outcome);

  /// Offspring with exactly one side allocated to a collected parent: "C + UC".
  double OneCollected() const { return only_par1_collected + only_par2_collected; }
  double Offspring() const { return both_collected + OneCollected() + none_collected; }
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <tuple>

#include "method/kept_pairs.h"

namespace kaldo {

/// What was decided for one offspring. The search fills what is known of pairs (OutcomeOf), then
/// DecideSides the sides of the first pair. A plain value: processes send it to each other.
struct AllocationOutcome {
  /// Parent indices stored in `pairs`, two per pair: 0 (no pair) to 10 (five pairs).
  int pair_entries = 0;

  /// The best pairs, equally likely, in the order in which the search met them. The first one
  /// decides the allocation; those behind the last one mean nothing.
  std::array<ParentPair, KeptPairs::kCapacity> pairs{};

  /// The mark "more than five": a sixth equally likely pair was met during the search. It stays
  /// when a better pair follows.
  bool more_than_five = false;

  /// Of the kept pairs, as ScanPairs defines it: no probability, it may exceed 1. 0 without a pair.
  double best_likelihood = 0;

  // For the first pair: whether each side must be taken as uncollected (UC), and its loci with an
  // offset other than 0.
  bool par1_uncollected = false;
  bool par2_uncollected = false;
  int errors_par1 = 0;
  int errors_par2 = 0;

  static auto Fields(auto& self) {
    return std::tie(self.pair_entries, self.pairs, self.more_than_five, self.best_likelihood,
                    self.par1_uncollected, self.par2_uncollected, self.errors_par1,
                    self.errors_par2);
  }

  /// False: no pair of collected parents is possible under the model of error. Both sides then
  /// count as uncollected.
  bool HasPair() const { return pair_entries > 0; }
  std::span<const ParentPair> Pairs() const {
    return std::span(pairs).first(static_cast<std::size_t>(pair_entries) / 2);
  }
};

}  // namespace kaldo

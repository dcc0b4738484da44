// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>

#include "method/kept_pairs.h"

namespace kaldo {

/// What was decided for one offspring.
struct AllocationOutcome {
  /// Parent indices stored in `pairs`, two per pair: 0 (no pair) to 10 (five pairs).
  int pair_entries = 0;
  std::array<ParentPair, KeptPairs::kCapacity> pairs{};

  bool more_than_five = false;  ///< a sixth equally likely pair was met during the search
  double best_likelihood = 0;   ///< of the kept pairs; 0 without a pair

  // For the first pair: whether each side must be taken as uncollected (UC), and its loci with an
  // offset other than 0.
  bool par1_uncollected = false;
  bool par2_uncollected = false;
  int errors_par1 = 0;
  int errors_par2 = 0;

  bool HasPair() const { return pair_entries > 0; }
  std::span<const ParentPair> Pairs() const {
    return std::span(pairs).first(static_cast<std::size_t>(pair_entries) / 2);
  }
};

}  // namespace kaldo

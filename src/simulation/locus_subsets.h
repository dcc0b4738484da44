// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

#include <tl/expected.hpp>

#include "genotypes/loci_list.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// The loci of one run through all iterations, in the order in which they entered: file order, or
/// that of the cumulative sequence.
using LocusSubset = std::vector<LocusIndex>;

/// The most subsets of one run.
inline constexpr std::uint64_t kMostSubsets = std::uint64_t{1} << 20U;

/// The subsets of loci that a strategy runs through, in order. They are made one by one: a million
/// subsets take eight megabytes.
class LocusSubsets {
 public:
  LocusSubsets() = default;

  /// The subsets that the strategy of the settings asks for, of the loci in use:
  /// - all, minimal: every subset with at least `start_with` loci, by growing size and inside a
  ///   size in lexicographic order of places in the file; minimal, which ends with the first that
  ///   is good enough, only the first kMostSubsets of them;
  /// - cumulative: the first `start_with`, one more, ... loci in the order in which the sequence of
  ///   the settings lets them enter, or else in file order;
  /// - choice: all of them, once.
  /// More than kMostSubsets of all subsets, or none, is a Problem.
  static tl::expected<LocusSubsets, Problem> Choose(const SimulationSettings& settings,
                                                    const LociList& loci);

  std::size_t Count() const;

  /// How many the strategy has, of which minimal may leave out the last.
  std::uint64_t InAll() const { return std::max<std::uint64_t>(all_, Count()); }

  /// The subset of that place, counted from 0 in the order of the run.
  LocusSubset At(std::size_t subset) const;

  /// All loci that take part, in order of entry.
  const std::vector<LocusIndex>& Loci() const { return loci_; }

 private:
  std::vector<LocusIndex> loci_;
  std::size_t first_prefix_ = 0;        ///< loci in the first subset when prefixes are taken
  std::vector<std::uint64_t> choices_;  ///< else one bit per place in loci_
  std::uint64_t all_ = 0;               ///< ... of so many in all
};

}  // namespace kaldo

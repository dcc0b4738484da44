// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "confidence/posterior.h"

namespace kaldo {

/// The parents of one offspring that are named at the level of confidence, by side; none of a side
/// that is open or not collected.
using NamedParents = std::array<std::optional<Slot>, 2>;

/// Of every offspring, in its order.
std::vector<NamedParents> NamedParentsOf(std::span<const OffspringConfidence> offspring);

/// Pairs of offspring that share parents, by the named ones alone.
struct Sibships {
  std::uint64_t full_sibs = 0;  ///< share both parents
  std::uint64_t half_sibs = 0;  ///< share one, and their other parents are named and differ

  /// Share one, and of at least one of them the other parent is not named: half or full sibs.
  std::uint64_t undecided = 0;

  std::size_t couples = 0;  ///< pairs of parents with an offspring of whom both are named
};

/// Which side a parent stands on means nothing here.
Sibships SibshipsOf(std::span<const NamedParents> offspring);

/// "Of the offspring 12 pairs are full sibs, ...".
std::string SibshipsSentence(const Sibships& sibships);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace kaldo {

inline constexpr std::size_t kMostOriginClasses = 4;
inline constexpr std::size_t kMostOriginRows = 9;

/// What one iteration found for one class of origin. All figures of the reports follow from these
/// counts.
struct ClassCounts {
  std::int32_t size = 0;  ///< pseudo-offspring of the class

  /// Pseudo-offspring by row of the class, after the decision on the first best pair.
  std::array<std::int32_t, kMostOriginRows> rows{};

  // The best pair itself, whatever the decision on its sides. A single best pair counts under the
  // code of its true parents (see SideCode).
  std::array<std::int32_t, 4> single_pair{};
  std::int32_t ambiguous = 0;  ///< several equally likely pairs, or the mark "more than five"
  std::int32_t nulls = 0;      ///< no pair

  /// The first best pair, also among several, by the code of its true parents; no pair is code 0.
  std::array<std::int32_t, 4> first_pair{};

  /// A count as a share of the class; 0 for a class without pseudo-offspring.
  double Share(std::int32_t count) const {
    return size == 0 ? 0.0 : static_cast<double>(count) / static_cast<double>(size);
  }

  friend bool operator==(const ClassCounts&, const ClassCounts&) = default;
};

/// The counts of one iteration, class by class.
using IterationCounts = std::array<ClassCounts, kMostOriginClasses>;

}  // namespace kaldo

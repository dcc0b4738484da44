// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "simulation/flows/side_code.h"

namespace kaldo {

inline constexpr std::size_t kMostOriginClasses = 4;
inline constexpr std::size_t kMostOriginRows = 9;

/// What one iteration found for one class of origin, in numbers of pseudo-offspring. All figures of
/// the reports follow from these counts. They are whole numbers, so that no order of adding and no
/// number of threads can change a figure.
struct ClassCounts {
  std::int32_t size = 0;  ///< pseudo-offspring of the class

  /// Pseudo-offspring by row of the class, after the decision on the first best pair.
  std::array<std::int32_t, kMostOriginRows> rows{};

  // The best pair itself, whatever the decision on its sides. A single best pair counts under the
  // code of its true parents (see SideCode).
  std::array<std::int32_t, kSideCodes> single_pair{};
  std::int32_t ambiguous = 0;  ///< several equally likely pairs, or the mark "more than five"
  std::int32_t nulls = 0;      ///< no pair

  /// The first best pair, also among several, by the code of its true parents; no pair is code 0.
  std::array<std::int32_t, kSideCodes> first_pair{};

  /// A count as a share of the class; 0 for a class without pseudo-offspring.
  double Share(std::int32_t count) const {
    return size == 0 ? 0.0 : static_cast<double>(count) / static_cast<double>(size);
  }

  friend bool operator==(const ClassCounts&, const ClassCounts&) = default;
};

/// The counts of one iteration, class by class; classes that a flow does not have stay 0.
using IterationCounts = std::array<ClassCounts, kMostOriginClasses>;

/// The iterations of one subset of loci, in their order.
using Iterations = std::span<const IterationCounts>;

/// The pseudo-offspring of all classes of an iteration.
inline std::int32_t PseudoOffspring(const IterationCounts& counts) {
  std::int32_t all = 0;
  for (const ClassCounts& of_class : counts) {
    all += of_class.size;
  }
  return all;
}

}  // namespace kaldo

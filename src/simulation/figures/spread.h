// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace kaldo {

/// How mean and standard deviation of a figure x over the n iterations of a run are formed. All
/// three are the population form (divisor n, not n - 1), which takes the iterations for all there
/// are. They are equal but for rounding; every report has its own, so that its digits are fixed
/// (this program's convention).
enum class SpreadKind {
  kDifferences,  ///< mean sum(x) / n; deviation sqrt(sum((x - mean)^2) / n)
  kSquares,      ///< mean sum(x) / n; deviation sqrt(sum(x^2) / n - mean^2)
  kSteps,        ///< mean sum(x / n); deviation sqrt(sum(x^2) / n - mean^2)
};

/// Mean and standard deviation over the iterations of a run, in the unit of the figure. What more
/// is told of a figure over the iterations, such as how exact its mean is, belongs here.
struct Spread {
  double mean = 0;
  double deviation = 0;  ///< not a number where rounding makes a variance negative
};

/// `values` holds one figure per iteration, at least one; they are added in that order.
Spread SpreadOf(std::span<const double> values, SpreadKind kind);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>
#include <span>

#include "simulation/figures/allocation_figures.h"

namespace kaldo {

/// An estimated probability and how exact it is. All three are not a number where nothing was
/// allocated in that way, so that nothing can be said of it.
struct Estimate {
  static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

  double value = kNone;      ///< 0 to 1
  double deviation = kNone;  ///< of an iteration: the standard deviation, with divisor n
  double error = kNone;      ///< of `value`: the standard error; not a number after one iteration
};

/// The estimate R = mean right / mean made of a probability, from the allocations made and right in
/// each of n iterations, of which there is at least one; `value` is R. An iteration counts by what
/// it allocated, so that it departs from R by d = (right - R made) / mean made:
///
///     deviation = root of (sum of d^2 / n),   error = deviation / root of (n - 1)
///
/// (Cochran, Sampling Techniques, 3rd edition 1977, 6.4: the error of a ratio estimate). Where all
/// iterations make the same number these are the ordinary deviation about the mean and the standard
/// error of the mean. A deviation below 1e-12 is rounding and told as 0.
Estimate EstimateOf(std::span<const SingleAllocation> iterations, double value);

}  // namespace kaldo

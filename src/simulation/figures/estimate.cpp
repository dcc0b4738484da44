// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/estimate.h"

#include <cmath>

namespace kaldo {

namespace {

constexpr double kRounding = 1e-12;

}  // namespace

Estimate EstimateOf(std::span<const SingleAllocation> iterations, double value) {
  const auto n = static_cast<double>(iterations.size());
  double made = 0;
  for (const SingleAllocation& iteration : iterations) {
    made += iteration.made;
  }
  if (!(made > 0)) {
    return {};
  }
  const double mean_made = made / n;
  double squares = 0;
  for (const SingleAllocation& iteration : iterations) {
    const double departure = (iteration.right - value * iteration.made) / mean_made;
    squares += departure * departure;
  }
  const double found = std::sqrt(squares / n);
  const double deviation = found < kRounding ? 0 : found;
  return {value, deviation, n > 1 ? deviation / std::sqrt(n - 1) : Estimate::kNone};
}

}  // namespace kaldo

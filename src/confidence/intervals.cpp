// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/intervals.h"

#include <algorithm>
#include <cmath>

namespace kaldo {

namespace {

/// The quantile of the normal distribution that leaves 2.5 % above.
constexpr double kZ = 1.959964;

}  // namespace

Interval WilsonInterval(double share, double n) {
  const double center = (share + kZ * kZ / (2 * n)) / (1 + kZ * kZ / n);
  const double half =
      kZ / (1 + kZ * kZ / n) * std::sqrt(share * (1 - share) / n + kZ * kZ / (4 * n * n));
  return {std::max(center - half, 0.0), std::min(center + half, 1.0)};
}

Interval NormalInterval(double share, double standard_error) {
  return {std::max(share - kZ * standard_error, 0.0), std::min(share + kZ * standard_error, 1.0)};
}

}  // namespace kaldo

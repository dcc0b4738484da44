// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/spread.h"

#include <cmath>

namespace kaldo {

Spread SpreadOf(std::span<const double> values, SpreadKind kind) {
  const auto n = static_cast<double>(values.size());
  double sum = 0;
  double squares = 0;
  for (const double value : values) {
    sum += kind == SpreadKind::kSteps ? value / n : value;
    squares += value * value;
  }
  const double mean = kind == SpreadKind::kSteps ? sum : sum / n;
  if (kind != SpreadKind::kDifferences) {
    return {mean, std::sqrt(squares / n - mean * mean)};
  }
  double differences = 0;
  for (const double value : values) {
    differences += (value - mean) * (value - mean);
  }
  return {mean, std::sqrt(differences / n)};
}

}  // namespace kaldo

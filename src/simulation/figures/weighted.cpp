// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/weighted.h"

namespace kaldo {

double Weighted(std::span<const double> weights, std::span<const double> of_classes) {
  double sum = weights[0] * of_classes[0];
  for (std::size_t k = 1; k < of_classes.size(); ++k) {
    sum += weights[k] * of_classes[k];
  }
  return sum;
}

double Ratio(double numerator, double denominator) {
  return denominator == 0 ? 0.0 : numerator / denominator;
}

}  // namespace kaldo

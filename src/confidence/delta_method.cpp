// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/delta_method.h"

#include <cstddef>

namespace kaldo {

/// By elimination.
double VarianceOfSum(SquareMatrix information, std::vector<double> weights) {
  double variance = 0;
  for (std::size_t a = 0; a < weights.size(); ++a) {
    const double pivot = information[a][a];
    variance += weights[a] * weights[a] / pivot;
    for (std::size_t b = a + 1; b < weights.size(); ++b) {
      const double factor = information[b][a] / pivot;
      weights[b] -= factor * weights[a];
      for (std::size_t c = a; c < weights.size(); ++c) {
        information[b][c] -= factor * information[a][c];
      }
    }
  }
  return variance;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/stranger_scores.h"

namespace kaldo {

std::vector<double> StrangerScores(const AlleleFrequencies& frequencies,
                                   const TransmissionMatrix& matrix) {
  std::vector<double> scores(matrix.Alleles());
  for (std::size_t read = 0; read < scores.size(); ++read) {
    double sum = 0;
    for (std::size_t carried = 0; carried < scores.size(); ++carried) {
      sum += frequencies[carried] * matrix(carried, read);
    }
    scores[read] = 2 * sum;
  }
  return scores;
}

}  // namespace kaldo

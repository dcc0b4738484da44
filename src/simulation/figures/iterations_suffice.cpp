// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/iterations_suffice.h"

#include "simulation/figures/probability_estimates.h"

namespace kaldo {

bool IterationsSuffice(std::span<const double> any_correct, double until_error) {
  const std::size_t n = any_correct.size();
  return n >= kFirstJudgement && n % kIterationsPerJudgement == 0 &&
         StandardError(any_correct) < until_error;
}

}  // namespace kaldo

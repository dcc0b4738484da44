// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/recovered_shares.h"

#include <limits>

namespace kaldo {

ExplanationShares RecoverShares(Flow flow, std::span<const OffspringConfidence> offspring,
                                const WaysOfExplanations& ways) {
  const ByExplanation<double> theta0 = EqualShares(ways);
  double informative = 1;
  // Sexed: the father was collected, the mother. Non-sexed: at least one parent, both.
  std::array<double, 2> sums = CollectedBySide(theta0);
  if (flow == Flow::kNonSexed) {
    sums = {1 - theta0[Explanation::kNone], theta0[Explanation::kBoth]};
  }
  for (const OffspringConfidence& one : offspring) {
    if (one.is_typed && one.is_possible) {
      informative += 1;
      sums[0] += 1 - one.sides[0].p_uncollected;
      sums[1] += 1 - one.sides[1].p_uncollected;
    }
  }
  const std::array<double, 2> shares = {sums[0] / informative, sums[1] / informative};
  ExplanationShares recovered;
  constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
  for (const Explanation k : kAllExplanations) {
    recovered.theta[k] = kUnknown;
  }
  recovered.log_likelihood = kUnknown;
  recovered.standard_error = kUnknown;
  recovered.collected = (shares[0] + shares[1]) / 2;
  recovered.collected_by_side = shares;
  if (flow == Flow::kNonSexed) {
    recovered.theta = {};
    recovered.theta[Explanation::kBoth] = shares[1];
    recovered.theta[Explanation::kFirst] = shares[0] - shares[1];
    recovered.theta[Explanation::kNone] = 1 - shares[0];
    recovered.collected_by_side = CollectedBySide(recovered.theta);
  }
  return recovered;
}

}  // namespace kaldo

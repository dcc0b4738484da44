// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/class_weights.h"

namespace kaldo {

std::vector<double> CollectedShares(const SimulationSettings& settings,
                                    std::span<const double> collected) {
  if (settings.flow == Flow::kNonSexed) {
    return {collected[0] / (collected[0] + settings.sets[0].uncollected)};
  }
  std::vector<double> shares;
  for (const ParentalSet& set : settings.sets) {
    shares.push_back(set.estimated_collected /
                     (set.estimated_collected + set.estimated_uncollected));
  }
  return shares;
}

std::vector<double> ClassWeights(const SimulationSettings& settings,
                                 std::span<const double> collected) {
  const std::vector<double> shares = CollectedShares(settings, collected);
  if (settings.flow == Flow::kNonSexed) {
    const double p = shares[0];
    return {p * p, 2 * p * (1 - p), (1 - p) * (1 - p)};
  }
  const double pm = shares[0];
  const double pf = shares[1];
  return {pm * pf, pm * (1 - pf), (1 - pm) * pf, (1 - pm) * (1 - pf)};
}

}  // namespace kaldo

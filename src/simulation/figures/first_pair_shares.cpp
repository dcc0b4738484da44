// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/first_pair_shares.h"

#include "simulation/figures/weighted.h"

namespace kaldo {

std::vector<double> FirstPairShares(const OriginClass& origin, const ClassCounts& counts) {
  const int collected = 2 - origin.UncollectedParents();
  if (collected == 0) {
    return {counts.Share(counts.size)};
  }
  std::vector<double> shares;
  for (int true_parents = collected; true_parents >= 0; --true_parents) {
    shares.push_back(counts.Share(counts.first_pair.at(static_cast<std::size_t>(true_parents))));
  }
  return shares;
}

double CombinedFirstPairShare(const SimulationDesign& design, const IterationCounts& counts) {
  double true_parents = 0;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    true_parents += 2.0 * counts.at(k).first_pair[2] + counts.at(k).first_pair[1];
  }
  return Ratio(true_parents * 0.5, PseudoOffspring(counts));
}

}  // namespace kaldo

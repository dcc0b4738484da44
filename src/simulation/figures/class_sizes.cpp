// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/class_sizes.h"

#include "simulation/figures/class_weights.h"

namespace kaldo {

namespace {

std::int32_t Truncated(double number) { return static_cast<std::int32_t>(number); }

}  // namespace

std::vector<std::int32_t> ClassSizes(const SimulationSettings& settings,
                                     std::span<const double> collected) {
  const std::vector<double> shares = CollectedShares(settings, collected);
  const double n = settings.offspring_per_iteration;
  if (settings.flow == Flow::kNonSexed) {
    const double uncollected = settings.sets[0].uncollected;
    const double p = shares[0];
    const double q = uncollected / (collected[0] + uncollected);
    return {Truncated(n * p * p), Truncated(2 * n * p * q), Truncated(n * q * q)};
  }
  const double pm = shares[0];
  const double pf = shares[1];
  return {Truncated(n * pf * pm), Truncated((1 - pf) * n * pm), Truncated((1 - pm) * n * pf),
          Truncated((1 - pm) * (1 - pf) * n)};
}

}  // namespace kaldo

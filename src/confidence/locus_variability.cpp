// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/locus_variability.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace kaldo {

namespace {

constexpr std::size_t kHighestPower = 6;

/// s_k = sum p^k, by k.
std::array<double, kHighestPower + 1> SumsOfPowers(std::span<const double> copies) {
  const double total = std::accumulate(copies.begin(), copies.end(), 0.0);
  std::array<double, kHighestPower + 1> sums{};
  for (const double copy : copies) {
    double power = 1;
    for (double& sum : sums) {
      sum += power;
      power *= copy / total;
    }
  }
  return sums;
}

}  // namespace

LocusVariability VariabilityOf(std::span<const double> copies, double heterozygotes) {
  const auto s = SumsOfPowers(copies);
  const double genes = std::accumulate(copies.begin(), copies.end(), 0.0);
  const double observed = heterozygotes / (genes / 2);
  const double expected = genes / (genes - 1) * (1 - s[2]);
  return {observed, expected, 1 - s[2] - (s[2] * s[2] - s[4]),
          (expected - observed) / (1 + expected)};
}

ExclusionProbabilities ExclusionsOf(std::span<const double> copies) {
  const auto s = SumsOfPowers(copies);
  return {1 - 4 * s[2] + 2 * s[2] * s[2] + 4 * s[3] - 3 * s[4],
          1 - 2 * s[2] + s[3] + 2 * s[4] - 3 * s[5] - 2 * s[2] * s[2] + 3 * s[2] * s[3],
          1 + 4 * s[4] - 4 * s[5] - 3 * s[6] - 8 * s[2] * s[2] + 8 * s[2] * s[3] + 2 * s[3] * s[3]};
}

}  // namespace kaldo

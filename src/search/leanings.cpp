// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/leanings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "search/locus_bounds.h"

namespace kaldo {

namespace {

// A class gives either allele with about the same ease where its smaller score is at least this
// share of the larger one.
constexpr double kEvenRatio = 0.95;

// Logarithms are off by less than this many costs.
constexpr double kRoundingMargin = 1e-6;

/// Costs of so many loci, each of which divides a likelihood by exp(`nats`) at least.
void Fill(std::span<std::int32_t> costs, double nats) {
  for (std::size_t loci = 0; loci < costs.size(); ++loci) {
    const double cost = static_cast<double>(loci) * (kCostsPerNat * nats - kRoundingMargin);
    costs[loci] = static_cast<std::int32_t>(std::floor(std::max(cost, 0.0)));
  }
}

}  // namespace

// The factor of a pair is |v1| |v2| sin(a1 + a2) with v = (P_R, P_J) and a the angle of v.
ClashCosts::ClashCosts(double side_ratio) {
  const double largest_side = std::atan(side_ratio);
  const double largest_even = std::atan(1 / kEvenRatio);
  constexpr double kRightAngle = std::numbers::pi / 2;
  Fill(same_only_, -std::log(std::sin(std::min(2 * largest_side, kRightAngle))));
  Fill(one_either_, -std::log(std::sin(std::min(largest_side + largest_even, kRightAngle))));
}

std::uint8_t LeaningOf(double r, double j, double side_ratio) {
  unsigned bits = (j == 0 ? leaning::kNoJ : 0U) | (r == 0 ? leaning::kNoR : 0U);
  if (bits == leaning::kNothing) {
    return leaning::kNothing;
  }
  if (j <= side_ratio * r) {
    bits |= leaning::kOnlyR | leaning::kOneOf;
  } else if (r <= side_ratio * j) {
    bits |= leaning::kOnlyJ | leaning::kOneOf;
  } else if (std::min(r, j) >= kEvenRatio * std::max(r, j)) {
    bits |= leaning::kEither;
  }
  return static_cast<std::uint8_t>(bits);
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
// What the leanings of two parents promise, against the factors of their likelihood.
#include "search/leanings.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "search/locus_bounds.h"

namespace kaldo {
namespace {

/// Scores of a parent at one locus: none, far apart, near the ratio of one-sided classes or even.
LocusBounds::Scores RandomScores(std::mt19937& random, double side_ratio) {
  std::uniform_real_distribution<> share(0, 1);
  const double larger = 0.1 + share(random);
  double smaller = 0;
  switch (random() % 6) {
    case 0:
      break;
    case 1:
      smaller = larger;
      break;
    case 2:
      smaller = larger * side_ratio * (0.98 + share(random) / 25);
      break;
    case 3:
      smaller = larger * (0.94 + share(random) / 50);
      break;
    default:
      smaller = larger * share(random);
  }
  return random() % 2 == 0 ? LocusBounds::Scores{larger, smaller}
                           : LocusBounds::Scores{smaller, larger};
}

TEST(Leanings, NeverPromiseTooLittleOfAPair) {
  std::mt19937 random(20260301);
  int costly = 0;
  int impossible = 0;
  for (int round = 0; round < 60'000; ++round) {
    const double side_ratio = std::ldexp(1, -2 - static_cast<int>(random() % 9));
    const std::size_t loci = 1 + random() % (round % 2 == 0 ? 3 : kMaxLoci);
    std::vector<std::uint64_t> wanted(kMaxLeaningWords);
    std::vector<std::uint64_t> leanings(kMaxLeaningWords);
    double log_share = 0;  // of |v1| |v2| that is left in the factors
    for (std::size_t k = 0; k < loci; ++k) {
      const auto one = RandomScores(random, side_ratio);
      const auto two = RandomScores(random, side_ratio);
      const std::size_t shift = kLeaningBits * (k % kLociPerLeaningWord);
      wanted[k / kLociPerLeaningWord] |= std::uint64_t{LeaningOf(one.r, one.j, side_ratio)}
                                         << shift;
      leanings[k / kLociPerLeaningWord] |= std::uint64_t{LeaningOf(two.r, two.j, side_ratio)}
                                           << shift;
      log_share += std::log(one.r * two.j + one.j * two.r) -
                   std::log(std::hypot(one.r, one.j) * std::hypot(two.r, two.j));
    }
    std::transform(wanted.begin(), wanted.end(), wanted.begin(), WantedLeanings);
    const LeaningClash clash = CompareLeanings(wanted, leanings.data());
    ASSERT_EQ(clash.is_impossible, std::isinf(log_share));
    impossible += clash.is_impossible ? 1 : 0;
    if (!clash.is_impossible) {
      const std::int32_t cost = ClashCosts(side_ratio).Cost(clash);
      ASSERT_LE(cost, -kCostsPerNat * log_share + 1e-6) << loci << " loci, " << side_ratio;
      costly += cost > 0 ? 1 : 0;
    }
  }
  EXPECT_GT(costly, 10'000);
  EXPECT_GT(impossible, 5'000);
}

}  // namespace
}  // namespace kaldo

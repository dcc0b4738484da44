// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/locus_bounds.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "allocation/cost_kernels.h"
#include "genotypes/capacities.h"

namespace kaldo {

namespace {

constexpr double kLargestCost = 254;
constexpr std::size_t kMostClasses = kMaxAlleles * (kMaxAlleles + 1) / 2;
// Logarithms are off by less than this many costs.
constexpr double kRoundingMargin = 1e-6;

std::uint8_t CostOf(double length, double log_largest) {
  const double cost = kCostsPerNat * (log_largest - std::log(length)) - kRoundingMargin;
  return static_cast<std::uint8_t>(std::clamp(std::floor(cost), 0.0, kLargestCost));
}

}  // namespace

void LocusBounds::Build(const ParentClasses& parents, const TransmissionMatrix& matrix,
                        AlleleIndex r, AlleleIndex j, double side_ratio) {
  const std::size_t classes = parents.Count();
  scores.resize(classes);
  one_sided.resize(classes);
  double largest = 0;
  for (std::size_t number = 0; number < classes; ++number) {
    const LocusGenotype& genotype = parents.Genotype(number);
    const std::size_t p1 = genotype.index1.Value();
    const std::size_t p2 = genotype.index2.Value();
    // The same sums as in the plain scan, so that products tie where they tie there.
    scores[number] = {matrix(p1, r.Value()) + matrix(p2, r.Value()),
                      matrix(p1, j.Value()) + matrix(p2, j.Value())};
    largest = std::max(largest, std::hypot(scores[number].r, scores[number].j));
  }
  log_largest = largest > 0 ? std::log(largest) : 0;

  std::array<std::uint8_t, kMostClasses> cost_of_class;
  std::array<std::uint8_t, kMostClasses> possible_class;
  all_possible = true;
  for (std::size_t number = 0; number < classes; ++number) {
    const auto [to_r, to_j] = scores[number];
    const double length = std::hypot(to_r, to_j);
    possible_class[number] = length > 0 ? 1 : 0;
    all_possible = all_possible && length > 0;
    cost_of_class[number] = length > 0 ? CostOf(length, log_largest) : 0;
    one_sided[number] = static_cast<std::uint8_t>((to_j <= side_ratio * to_r ? 1 : 0) +
                                                  (to_r <= side_ratio * to_j ? 2 : 0));
  }

  const auto of_parents = parents.OfParents();
  const std::size_t padded = (of_parents.size() + kBlock - 1) / kBlock * kBlock;
  costs.assign(padded, 0);
  for (std::size_t slot = 0; slot < of_parents.size(); ++slot) {
    costs[slot] = cost_of_class[of_parents[slot]];
  }
  if (all_possible) {
    return;
  }
  possible.assign(padded / kBlock, 0);
  for (std::size_t slot = 0; slot < of_parents.size(); ++slot) {
    possible[slot / kBlock] |= std::uint64_t{possible_class[of_parents[slot]]} << slot % kBlock;
  }
}

}  // namespace kaldo

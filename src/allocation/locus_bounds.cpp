// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/locus_bounds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "allocation/cost_kernels.h"
#include "genotypes/capacities.h"

namespace kaldo {

namespace {

constexpr double kLargestCost = 254;
constexpr std::size_t kMostClasses = kMaxAlleles * (kMaxAlleles + 1) / 2;
// Logarithms are off by less than this many costs.
constexpr double kRoundingMargin = 1e-6;

// Squares of larger numbers keep all their digits.
constexpr double kSafeToSquare = 0x1p-400;

/// The logarithm of |(r, j)|; minus infinity for (0, 0).
double LogLength(double r, double j) {
  const double larger = std::max(std::abs(r), std::abs(j));
  if (larger > kSafeToSquare) {
    return 0.5 * std::log(r * r + j * j);
  }
  if (larger == 0) {
    return -std::numeric_limits<double>::infinity();
  }
  const double ratio = std::min(std::abs(r), std::abs(j)) / larger;
  return std::log(larger) + 0.5 * std::log1p(ratio * ratio);
}

std::uint8_t CostOf(double log_length, double log_largest) {
  const double cost = kCostsPerNat * (log_largest - log_length) - kRoundingMargin;
  return static_cast<std::uint8_t>(std::clamp(std::floor(cost), 0.0, kLargestCost));
}

}  // namespace

void LocusBounds::Build(const ParentClasses& parents, const TransmissionMatrix& matrix,
                        AlleleIndex r, AlleleIndex j, double side_ratio) {
  const std::size_t classes = parents.Count();
  scores.resize(classes);
  std::array<double, kMostClasses> log_lengths;
  log_largest = -std::numeric_limits<double>::infinity();
  for (std::size_t number = 0; number < classes; ++number) {
    const LocusGenotype& genotype = parents.Genotype(number);
    const std::size_t p1 = genotype.index1.Value();
    const std::size_t p2 = genotype.index2.Value();
    // The same sums as in the plain scan, so that products tie where they tie there.
    const double to_r = matrix(p1, r.Value()) + matrix(p2, r.Value());
    const double to_j = matrix(p1, j.Value()) + matrix(p2, j.Value());
    scores[number] = {to_r, to_j, to_j <= side_ratio * to_r ? 1U : 0U,
                      to_r <= side_ratio * to_j ? 1U : 0U};
    log_lengths.at(number) = LogLength(to_r, to_j);
    log_largest = std::max(log_largest, log_lengths.at(number));
  }
  if (std::isinf(log_largest)) {
    log_largest = 0;  // nobody can have given anything
  }
  costs.clear();
  cost_of_class.resize(classes);
  all_possible = true;
  for (std::size_t number = 0; number < classes; ++number) {
    const bool is_possible = !std::isinf(log_lengths.at(number));
    all_possible = all_possible && is_possible;
    cost_of_class[number] = is_possible ? CostOf(log_lengths.at(number), log_largest) : 0;
  }
  if (!all_possible) {
    FindPossibleParents(parents);
  }
}

void LocusBounds::FindPossibleParents(const ParentClasses& parents) {
  std::array<std::uint8_t, kMostClasses> possible_class;
  for (std::size_t number = 0; number < scores.size(); ++number) {
    possible_class.at(number) = scores[number].r != 0 || scores[number].j != 0 ? 1 : 0;
  }
  const auto of_parents = parents.OfParents();
  possible.resize((of_parents.size() + kBlock - 1) / kBlock);
  for (std::size_t block = 0; block < possible.size(); ++block) {
    const std::size_t begin = block * kBlock;
    const std::size_t count = std::min(kBlock, of_parents.size() - begin);
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < count; ++i) {
      word |= std::uint64_t{possible_class[of_parents[begin + i]]} << i;
    }
    possible[block] = word;
  }
}

void LocusBounds::AddCostsOfParents(const ParentClasses& parents) {
  const auto of_parents = parents.OfParents();
  costs.assign((of_parents.size() + kBlock - 1) / kBlock * kBlock, 0);
  for (std::size_t slot = 0; slot < of_parents.size(); ++slot) {
    costs[slot] = cost_of_class[of_parents[slot]];
  }
}

}  // namespace kaldo

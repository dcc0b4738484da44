// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/locus_bounds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "genotypes/capacities.h"
#include "search/cost_kernels.h"
#include "search/leanings.h"

namespace kaldo {

namespace {

constexpr double kLargestCost = 254;
// All genotypes, and the undefined one.
constexpr std::size_t kMostClasses = kMaxAlleles * (kMaxAlleles + 1) / 2 + 1;
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

/// Logarithms of lengths, and leanings, of the last few scores: under every model of error most
/// classes share theirs.
class Measures {
 public:
  struct Measure {
    LocusBounds::Scores scores;
    double log_length;
    std::uint8_t leaning;
  };

  explicit Measures(double side_ratio) : side_ratio_(side_ratio) {}

  const Measure& Find(LocusBounds::Scores scores) {
    for (std::size_t i = 0; i < in_use_; ++i) {
      if (known_[i].scores.r == scores.r && known_[i].scores.j == scores.j) {
        return known_[i];
      }
    }
    Measure& measure = known_[next_];
    next_ = (next_ + 1) % known_.size();
    in_use_ = std::min(in_use_ + 1, known_.size());
    measure = {scores, LogLength(scores.r, scores.j), LeaningOf(scores.r, scores.j, side_ratio_)};
    return measure;
  }

 private:
  double side_ratio_;
  std::array<Measure, 8> known_;
  std::size_t next_ = 0;
  std::size_t in_use_ = 0;
};

}  // namespace

std::uint8_t CostOf(double log_length, double log_largest) {
  const double cost = kCostsPerNat * (log_largest - log_length) - kRoundingMargin;
  // Above 0, so that cutting off the fraction rounds down. No number is no cost.
  return cost > 0 ? static_cast<std::uint8_t>(std::min(cost, kLargestCost)) : std::uint8_t{0};
}

void LocusBounds::Build(const ParentClasses& parents, const TransmissionMatrix& matrix,
                        AlleleIndex r, AlleleIndex j, double side_ratio) {
  const std::size_t classes = parents.Count();
  scores.resize(classes);
  cost_of_class.resize(classes);
  leaning_of_class.resize(classes);
  std::array<double, kMostClasses> log_lengths;
  Measures measures(side_ratio);
  log_largest = -std::numeric_limits<double>::infinity();
  for (std::size_t number = 0; number < classes; ++number) {
    const LocusGenotype& genotype = parents.Genotype(number);
    const std::size_t p1 = genotype.index1.Value();
    const std::size_t p2 = genotype.index2.Value();
    // The same sums as in the plain scan, so that products tie where they tie there.
    scores[number] = {matrix(p1, r.Value()) + matrix(p2, r.Value()),
                      matrix(p1, j.Value()) + matrix(p2, j.Value())};
    const Measures::Measure& measure = measures.Find(scores[number]);
    leaning_of_class[number] = measure.leaning;
    log_lengths[number] = measure.log_length;
    log_largest = std::max(log_largest, measure.log_length);
  }
  if (std::isinf(log_largest)) {
    log_largest = 0;  // nobody can have given anything
  }
  for (std::size_t number = 0; number < classes; ++number) {
    cost_of_class[number] = CostOf(log_lengths[number], log_largest);
  }
  costs.clear();
}

void LocusBounds::AddCostsOfParents(const ParentClasses& parents) {
  const auto of_parents = parents.OfParents();
  costs.assign((of_parents.size() + kBlock - 1) / kBlock * kBlock, 0);
  for (std::size_t slot = 0; slot < of_parents.size(); ++slot) {
    costs[slot] = cost_of_class[of_parents[slot]];
  }
}

}  // namespace kaldo

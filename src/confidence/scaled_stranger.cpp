// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/scaled_stranger.h"

#include <cmath>

namespace kaldo {

namespace {

// No factor of a locus is larger: scores are at most 2.
constexpr double kLargestFactor = 8;

/// The factor of a locus.
double Factor(ScaledStranger::Scores one, ScaledStranger::Scores other) {
  return one.r * other.j + one.j * other.r;
}

/// The power of two by which the scores of a locus are multiplied: the factor of two strangers and
/// the largest one that can be then lie about as far below 1 as above. With 50 loci of 50,000
/// parents the products of both stay within the range of a double.
double ScaleOf(double strangers_factor) {
  return std::exp2(-std::round(std::log2(kLargestFactor * strangers_factor) / 4));
}

}  // namespace

ScaledStranger::ScaledStranger(const SearchStudy& study,
                               std::span<const std::vector<double>> strangers)
    : study_(study),
      strangers_(strangers),
      scores_(study.loci.size()),
      scales_(study.loci.size()) {}

bool ScaledStranger::GoTo(Slot offspring) {
  bool is_typed = false;
  for (std::size_t k = 0; k < scores_.size(); ++k) {
    const LocusGenotype& genotype = study_.Genotypes(k)[offspring.Value()];
    scores_[k] = {1, 0.5};
    scales_[k] = 1;
    if (!genotype.IsMissing()) {
      is_typed = true;
      const auto& scores = strangers_[study_.loci[k].Value()];
      const Scores own = {scores[genotype.index1.Value()], scores[genotype.index2.Value()]};
      scales_[k] = ScaleOf(Factor(own, own));
      scores_[k] = {own.r * scales_[k], own.j * scales_[k]};
    }
  }
  return is_typed;
}

double ScaledStranger::LikelihoodOfTwo() const {
  double product = 1;
  for (const Scores& scores : scores_) {
    product *= Factor(scores, scores);
  }
  return product;
}

}  // namespace kaldo

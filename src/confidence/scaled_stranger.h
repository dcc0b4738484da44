// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "search/locus_bounds.h"
#include "search/search_study.h"

namespace kaldo {

/// What a parent that was not collected gives to one offspring, see StrangerScores, in the units of
/// that offspring: all scores of a locus are multiplied by a power of two of its own, so that
/// likelihoods neither vanish nor overflow.
class ScaledStranger {
 public:
  using Scores = LocusBounds::Scores;

  /// `strangers`: P(U) by locus of the names-of-loci file and allele. Both must stay as they are.
  ScaledStranger(const SearchStudy& study, std::span<const std::vector<double>> strangers);

  /// Goes over to an offspring; false where nothing is typed.
  bool GoTo(Slot offspring);

  /// By locus of the run.
  std::span<const Scores> OfLoci() const { return scores_; }
  std::span<const double> Scales() const { return scales_; }

  /// L(U,U).
  double LikelihoodOfTwo() const;

 private:
  SearchStudy study_;
  std::span<const std::vector<double>> strangers_;
  std::vector<Scores> scores_;
  std::vector<double> scales_;
};

}  // namespace kaldo

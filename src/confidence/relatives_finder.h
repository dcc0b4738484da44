// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "confidence/evidence_finder.h"
#include "confidence/posterior.h"
#include "confidence/relatives_shares.h"
#include "confidence/scaled_stranger.h"

namespace kaldo {

/// What is wanted about one offspring when relatives count.
struct RelativesWish {
  OriginShares shares;

  /// Pairs left out weigh together less than this share of the evidence under these shares.
  double delta = 0;

  /// Whether both parents may be sibs of candidates: the combination that takes longest.
  bool two_sibs = true;
  AskedCandidates asked;
};

/// What the genotypes say about one offspring when relatives count.
struct RelativesEvidence {
  bool is_typed = false;
  ByOrigins<double> mean;    ///< the mean likelihood over the ways of each combination
  ByOrigins<double> limits;  ///< of pairs, with which the means were taken
  WeighedExplanations weighed;

  static auto Fields(auto& self) {
    return std::tie(self.is_typed, self.mean, self.limits, self.weighed);
  }
};

/// Gathers the evidence of one offspring after the other, with parents that are full sibs of
/// candidates among the explanations; one object serves one thread.
///
/// The scores of such a sib are the mean of those of the candidate and of a stranger, so that the
/// likelihood of a pair with it is a product over the loci like any other.
class RelativesFinder {
 public:
  explicit RelativesFinder(const EvidenceStudy& study);

  /// Throws RunStopped when the observer asks.
  RelativesEvidence Find(Slot offspring, const RelativesWish& wish, const RunObserver& observer);

 private:
  void FindSingles(RelativesEvidence& evidence);
  void FindPairs(const RelativesWish& wish, RelativesEvidence& evidence,
                 const RunObserver& observer);
  void FillUntyped(RelativesEvidence& evidence);
  void CountUntyped(const CandidateGroup& group, Origins o);
  void AddLikelihood(std::size_t side, Slot slot, Origins origins, double sum);
  void Conclude(const AskedCandidates& asked, RelativesEvidence& evidence);
  void Take(std::size_t side, Slot slot, double total, RelativesEvidence& evidence) const;
  void Rank(std::size_t side, double total, RelativesEvidence& evidence);
  double Total(const RelativesEvidence& evidence) const;
  std::size_t SideOf(std::size_t side) const { return study_.flow == Flow::kSexed ? side : 0; }
  std::size_t Sides() const { return study_.flow == Flow::kSexed ? 2 : 1; }

  EvidenceStudy study_;
  PairSums sums_;

  // Of the current offspring:
  std::optional<OffspringCandidates> own_;
  ByOrigins<double> ways_;
  ScaledStranger stranger_;
  ByOrigins<double> weights_;
  ByOrigins<double> per_way_;
  std::array<std::vector<double>, 2> likelihoods_;  ///< by side and slot, weighed
  std::array<std::vector<double>, 2> alone_;        ///< the part without a collected partner
  std::vector<ParentLikelihood> singles_;
};

/// Whether evidence leaves out too much under these shares.
bool LeavesOutTooMuch(const RelativesEvidence& evidence, Flow flow,
                      const ByOrigins<double>& weights, double delta);

}  // namespace kaldo

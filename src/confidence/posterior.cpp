// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/posterior.h"

#include <algorithm>
#include <cmath>

namespace kaldo {

namespace {

constexpr std::array<Explanation, 2> kOneCollected = {Explanation::kFirst, Explanation::kSecond};

/// Turns the evidence of one offspring into probabilities.
class PosteriorMaker {
 public:
  PosteriorMaker(const Evidence& evidence, Flow flow, const ByExplanation<double>& theta,
                 const WaysOfExplanations& ways)
      : evidence_(evidence), flow_(flow) {
    for (const Explanation k : kAllExplanations) {
      total_ += theta[k] * evidence.fixed.mean[k];
    }
    for (const Explanation k : kAllExplanations) {
      per_way_[k] = ways[k] > 0 && total_ > 0 ? theta[k] / ways[k] / total_ : 0;
      p_explanation_[k] = total_ > 0 ? theta[k] * evidence.fixed.mean[k] / total_ : 0;
    }
  }

  OffspringConfidence Make(double level, const std::optional<ReportedParents>& reported) const {
    OffspringConfidence result;
    result.is_possible = total_ > 0;
    result.is_typed = evidence_.fixed.is_typed;
    CompareBestPair(result);
    if (!result.is_possible) {
      return result;
    }
    result.p_explanation = p_explanation_;
    RankCandidates(result.sides);
    for (std::size_t side = 0; side < 2; ++side) {
      SideConfidence& one = result.sides[side];
      one.p_uncollected = Uncollected(side);
      one.verdict =
          DecideVerdict(one.candidate ? one.candidate->probability : 0, one.p_uncollected, level);
      if (reported) {
        one.p_reported = Reported(*reported, side);
      }
    }
    FindBestAssignment(result);
    return result;
  }

 private:
  bool IsSexed() const { return flow_ == Flow::kSexed; }

  double Probability(std::size_t side, const CandidateEvidence& candidate) const {
    return per_way_[Explanation::kBoth] * candidate.with_partners +
           per_way_[kOneCollected[side]] * candidate.with_stranger;
  }

  double Uncollected(std::size_t side) const {
    const double none = p_explanation_[Explanation::kNone];
    if (IsSexed()) {
      return none + p_explanation_[kOneCollected[1 - side]];
    }
    return side == 0 ? none : none + p_explanation_[Explanation::kFirst];
  }

  /// Ranks a shortlist and gives the place of each candidate: the most probable ones, then none.
  std::array<const ShortlistedCandidate*, kCandidatesTold> Ranked(std::size_t side) const {
    std::array<const ShortlistedCandidate*, kCandidatesTold> ranked{};
    const auto is_before = [&](const ShortlistedCandidate& a, const ShortlistedCandidate* b) {
      if (b == nullptr) {
        return true;
      }
      const double p_a = Probability(side, a.evidence);
      const double p_b = Probability(side, b->evidence);
      return p_a > p_b || (p_a == p_b && a.slot < b->slot);
    };
    for (const ShortlistedCandidate& candidate : evidence_.shortlists[side]) {
      const ShortlistedCandidate* placed = &candidate;
      for (const ShortlistedCandidate*& place : ranked) {
        if (placed != nullptr && is_before(*placed, place)) {
          std::swap(placed, place);
        }
      }
    }
    return ranked;
  }

  void Fill(std::size_t side, const ShortlistedCandidate* candidate,
            const ShortlistedCandidate* next, SideConfidence& result) const {
    if (candidate != nullptr) {
      result.candidate = {candidate->slot, Probability(side, candidate->evidence)};
      result.alike = candidate->alike;
      result.p_all_alike = Probability(side, candidate->all_alike);
    }
    if (next != nullptr) {
      result.runner_up = {next->slot, Probability(side, next->evidence)};
    }
  }

  void RankCandidates(std::array<SideConfidence, 2>& sides) const {
    const auto first = Ranked(0);
    if (IsSexed()) {
      const auto second = Ranked(1);
      Fill(0, first[0], first[1], sides[0]);
      Fill(1, second[0], second[1], sides[1]);
    } else {
      Fill(0, first[0], first[2], sides[0]);
      Fill(0, first[1], first[2], sides[1]);
    }
  }

  double Reported(const ReportedParents& reported, std::size_t side) const {
    if (reported[side]) {
      return Probability(IsSexed() ? side : 0, *evidence_.fixed.asked[side]);
    }
    const bool both_uncollected = !reported[1 - side];
    return Uncollected(IsSexed() || (both_uncollected && side == 0) ? side : 1);
  }

  void FindBestAssignment(OffspringConfidence& result) const {
    const auto offer = [&](Explanation k, double likelihood, std::optional<Slot> first,
                           std::optional<Slot> second) {
      const double probability = per_way_[k] * likelihood;
      if (probability > result.p_best) {
        result.best_explanation = k;
        result.best = {first, second};
        result.p_best = probability;
      }
    };
    const auto& fixed = evidence_.fixed;
    if (fixed.best_pair.pairs > 0) {
      offer(Explanation::kBoth, fixed.best_pair.likelihood, fixed.best_pair.pair.parent1,
            fixed.best_pair.pair.parent2);
    }
    offer(Explanation::kFirst, fixed.best_with_stranger[0].likelihood,
          fixed.best_with_stranger[0].slot, std::nullopt);
    offer(Explanation::kSecond, fixed.best_with_stranger[1].likelihood, std::nullopt,
          fixed.best_with_stranger[1].slot);
    offer(Explanation::kNone, fixed.mean[Explanation::kNone], std::nullopt, std::nullopt);
  }

  void CompareBestPair(OffspringConfidence& result) const {
    const BestPairEvidence& best = evidence_.fixed.best_pair;
    result.tied_pairs = best.pairs;
    if (best.pairs == 0) {
      return;
    }
    if (best.second > 0) {
      result.ln_best_second = std::log(best.likelihood) - std::log(best.second);
    }
    result.ln_pair_unknown = {std::log(best.likelihood) - std::log(best.without_parent1),
                              std::log(best.likelihood) - std::log(best.without_parent2)};
  }

  const Evidence& evidence_;
  Flow flow_;
  double total_ = 0;
  ByExplanation<double> per_way_;  ///< what a likelihood is multiplied by
  ByExplanation<double> p_explanation_;
};

}  // namespace

OffspringConfidence Posterior(const Evidence& evidence, Flow flow,
                              const ByExplanation<double>& theta, const WaysOfExplanations& ways,
                              double level, const std::optional<ReportedParents>& reported) {
  return PosteriorMaker(evidence, flow, theta, ways).Make(level, reported);
}

}  // namespace kaldo

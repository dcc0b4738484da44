// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/posterior.h"

#include <algorithm>
#include <cmath>

namespace kaldo {

namespace {

constexpr std::array<Explanation, 2> kOneCollected = {Explanation::kFirst, Explanation::kSecond};

/// Turns the evidence of one offspring into probabilities.
class ExplanationWeigher {
 public:
  ExplanationWeigher(const Evidence& evidence, Flow flow, const ByExplanation<double>& theta,
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

  WeighedExplanations Weigh() const {
    WeighedExplanations weighed;
    weighed.is_possible = total_ > 0;
    if (!weighed.is_possible) {
      return weighed;
    }
    const auto& fixed = evidence_.fixed;
    weighed.p_explanation = p_explanation_;
    weighed.p_per_likelihood_of_pair = per_way_[Explanation::kBoth];
    for (std::size_t side = 0; side < 2; ++side) {
      weighed.ranked[side] = Ranked(side);
      const BestCandidate& alone = fixed.best_with_stranger[side];
      if (alone.slot) {
        weighed.best_alone[side] = {*alone.slot, per_way_[kOneCollected[side]] * alone.likelihood};
      }
      if (fixed.asked[side]) {
        weighed.asked[side] = Probability(flow_ == Flow::kSexed ? side : 0, *fixed.asked[side]);
      }
    }
    return weighed;
  }

 private:
  double Probability(std::size_t side, const CandidateEvidence& candidate) const {
    return per_way_[Explanation::kBoth] * candidate.with_partners +
           per_way_[kOneCollected[side]] * candidate.with_stranger;
  }

  /// The most probable ones of a shortlist.
  std::array<std::optional<RankedCandidate>, kCandidatesTold> Ranked(std::size_t side) const {
    std::array<std::optional<RankedCandidate>, kCandidatesTold> ranked;
    const auto is_before = [](const RankedCandidate& a, const std::optional<RankedCandidate>& b) {
      return !b || a.probability > b->probability ||
             (a.probability == b->probability && a.slot < b->slot);
    };
    for (const ShortlistedCandidate& candidate : evidence_.shortlists[side]) {
      std::optional<RankedCandidate> placed =
          RankedCandidate{candidate.slot, Probability(side, candidate.evidence), candidate.alike,
                          Probability(side, candidate.all_alike)};
      for (auto& place : ranked) {
        if (placed && is_before(*placed, place)) {
          std::swap(placed, place);
        }
      }
    }
    return ranked;
  }

  const Evidence& evidence_;
  Flow flow_;
  double total_ = 0;
  ByExplanation<double> per_way_;  ///< what a likelihood is multiplied by
  ByExplanation<double> p_explanation_;
};

double Uncollected(const ByExplanation<double>& p, Flow flow, std::size_t side) {
  const double none = p[Explanation::kNone];
  if (flow == Flow::kSexed) {
    return none + p[kOneCollected[1 - side]];
  }
  return side == 0 ? none : none + p[Explanation::kFirst];
}

double Reported(const WeighedExplanations& weighed, Flow flow, const ReportedParents& reported,
                std::size_t side) {
  if (reported[side]) {
    return *weighed.asked[side];
  }
  const bool both_uncollected = !reported[1 - side];
  const bool own = flow == Flow::kSexed || (both_uncollected && side == 0);
  return Uncollected(weighed.p_explanation, flow, own ? side : 1);
}

void Fill(const std::optional<RankedCandidate>& candidate,
          const std::optional<RankedCandidate>& next, SideConfidence& side) {
  if (candidate) {
    side.candidate = {candidate->slot, candidate->probability};
    side.alike = candidate->alike;
    side.p_all_alike = candidate->p_all_alike;
  }
  if (next) {
    side.runner_up = {next->slot, next->probability};
  }
}

void FindBestAssignment(const WeighedExplanations& weighed, const BestPairEvidence& best_pair,
                        OffspringConfidence& result) {
  const auto offer = [&](Explanation k, double probability, std::optional<Slot> first,
                         std::optional<Slot> second) {
    if (probability > result.p_best) {
      result.best_explanation = k;
      result.best = {first, second};
      result.p_best = probability;
    }
  };
  if (best_pair.pairs > 0) {
    offer(Explanation::kBoth, weighed.p_per_likelihood_of_pair * best_pair.likelihood,
          best_pair.pair.parent1, best_pair.pair.parent2);
  }
  const auto& alone = weighed.best_alone;
  if (alone[0]) {
    offer(Explanation::kFirst, alone[0]->probability, alone[0]->slot, std::nullopt);
  }
  if (alone[1]) {
    offer(Explanation::kSecond, alone[1]->probability, std::nullopt, alone[1]->slot);
  }
  offer(Explanation::kNone, weighed.p_explanation[Explanation::kNone], std::nullopt, std::nullopt);
}

void CompareBestPair(const BestPairEvidence& best, OffspringConfidence& result) {
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

}  // namespace

OffspringConfidence Conclude(const WeighedExplanations& weighed, const Evidence::Fixed& evidence,
                             Flow flow, double level,
                             const std::optional<ReportedParents>& reported) {
  OffspringConfidence result;
  result.is_possible = weighed.is_possible;
  result.is_typed = evidence.is_typed;
  CompareBestPair(evidence.best_pair, result);
  if (!result.is_possible) {
    return result;
  }
  result.p_explanation = weighed.p_explanation;
  if (flow == Flow::kSexed) {
    Fill(weighed.ranked[0][0], weighed.ranked[0][1], result.sides[0]);
    Fill(weighed.ranked[1][0], weighed.ranked[1][1], result.sides[1]);
  } else {
    Fill(weighed.ranked[0][0], weighed.ranked[0][2], result.sides[0]);
    Fill(weighed.ranked[0][1], weighed.ranked[0][2], result.sides[1]);
  }
  for (std::size_t side = 0; side < 2; ++side) {
    SideConfidence& one = result.sides[side];
    one.p_uncollected = Uncollected(weighed.p_explanation, flow, side);
    one.verdict =
        DecideVerdict(one.candidate ? one.candidate->probability : 0, one.p_uncollected, level);
    if (reported) {
      one.p_reported = Reported(weighed, flow, *reported, side);
    }
  }
  FindBestAssignment(weighed, evidence.best_pair, result);
  return result;
}

OffspringConfidence Posterior(const Evidence& evidence, Flow flow,
                              const ByExplanation<double>& theta, const WaysOfExplanations& ways,
                              double level, const std::optional<ReportedParents>& reported) {
  return Conclude(ExplanationWeigher(evidence, flow, theta, ways).Weigh(), evidence.fixed, flow,
                  level, reported);
}

}  // namespace kaldo

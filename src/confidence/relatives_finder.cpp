// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/relatives_finder.h"

#include <algorithm>
#include <limits>

namespace kaldo {

namespace {

// Pairs of candidates and sibs come in so many combinations, each with a part of delta.
constexpr double kCombinationsOfPairs = 4;

bool IsPair(Origins o) { return o.first != Origin::kUnknown && o.second != Origin::kUnknown; }

Kin KinOf(Origin origin) { return origin == Origin::kSib ? Kin::kSib : Kin::kSelf; }

double TotalOf(Flow flow, const ByOrigins<double>& weights, const ByOrigins<double>& mean) {
  double total = 0;
  for (const Origins o : AllOrigins(flow)) {
    total += weights[o] * mean[o];
  }
  return total;
}

/// The likelihood below which a pair may be left out.
double LimitFor(double total, double weight, double delta) {
  return weight > 0 ? delta / kCombinationsOfPairs * total / weight
                    : std::numeric_limits<double>::max();
}

}  // namespace

bool LeavesOutTooMuch(const RelativesEvidence& evidence, Flow flow,
                      const ByOrigins<double>& weights, double delta) {
  const double total = TotalOf(flow, weights, evidence.mean);
  const auto all = AllOrigins(flow);
  return evidence.is_typed && std::any_of(all.begin(), all.end(), [&](Origins o) {
           return IsPair(o) && evidence.limits[o] > LimitFor(total, weights[o], delta);
         });
}

RelativesFinder::RelativesFinder(const EvidenceStudy& study)
    : study_(study), stranger_(study.search, study.strangers) {
  sums_.Prepare(study_.search, study_.flow, study_.groups);
  for (std::size_t side = 0; side < Sides(); ++side) {
    likelihoods_[side].resize(study_.search.parents);
    alone_[side].resize(study_.search.parents);
  }
}

double RelativesFinder::Total(const RelativesEvidence& evidence) const {
  return TotalOf(study_.flow, weights_, evidence.mean);
}

/// A candidate of a side shares in `sum`, of the likelihoods of its ways in this combination.
void RelativesFinder::AddLikelihood(std::size_t side, Slot slot, Origins origins, double sum) {
  likelihoods_[side][slot.Value()] += per_way_[origins] * sum;
  if (origins.Case() != Explanation::kBoth) {
    alone_[side][slot.Value()] += per_way_[origins] * sum;
  }
}

/// Candidates, and their sibs, with a stranger.
void RelativesFinder::FindSingles(RelativesEvidence& evidence) {
  for (const Origins o : AllOrigins(study_.flow)) {
    if (IsPair(o) || ways_[o] == 0) {
      continue;
    }
    if (o.first == o.second) {
      evidence.mean[o] = stranger_.LikelihoodOfTwo();
      continue;
    }
    const std::size_t side = o.second == Origin::kUnknown ? 0 : 1;
    const Origin origin = side == 0 ? o.first : o.second;
    singles_.clear();
    sums_.PairWith(stranger_.OfLoci(), side == 1, KinOf(origin), 0, singles_);
    double sum = 0;
    for (const ParentLikelihood& one : singles_) {
      sum += one.likelihood;
      if (origin == Origin::kCollected) {
        AddLikelihood(side, one.parent, o, one.likelihood);
      }
    }
    evidence.mean[o] = sum / ways_[o];
  }
}

void RelativesFinder::FindPairs(const RelativesWish& wish, RelativesEvidence& evidence,
                                const RunObserver& observer) {
  for (const Origins o : AllOrigins(study_.flow)) {
    const bool two_sibs = o.first == Origin::kSib && o.second == Origin::kSib;
    if (!IsPair(o) || ways_[o] == 0 || (two_sibs && !wish.two_sibs)) {
      continue;
    }
    // Around a known parent pairs are few, and strangers do not count: none is left out.
    const double limit =
        own_->HasKnownParent() ? 0 : LimitFor(Total(evidence), weights_[o], wish.delta);
    evidence.limits[o] = limit;
    if (limit == std::numeric_limits<double>::max()) {
      continue;
    }
    sums_.SumUp(KinOf(o.first), KinOf(o.second), limit, observer);
    evidence.mean[o] = sums_.Total() / ways_[o];
    if (o.first == Origin::kCollected) {
      for (const ParentSum& one : sums_.SumsOfFirst()) {
        AddLikelihood(0, one.parent, o, one.sum);
      }
    }
    if (o.second == Origin::kCollected) {
      for (const ParentSum& one : sums_.SumsOfSecond()) {
        AddLikelihood(SideOf(1), one.parent, o, one.sum);
      }
    }
  }
}

/// Every likelihood is 1: what remains is how many candidates there are.
void RelativesFinder::FillUntyped(RelativesEvidence& evidence) {
  for (const Origins o : AllOrigins(study_.flow)) {
    evidence.mean[o] = ways_[o] > 0 ? 1 : 0;
    for (const CandidateGroup& group : own_->Groups()) {
      CountUntyped(group, o);
    }
  }
}

void RelativesFinder::CountUntyped(const CandidateGroup& group, Origins o) {
  own_->ForEachPartnered(group, [&](std::size_t side, Slot slot, double partners) {
    const auto [own, other] = side == 0 ? o : Origins{o.second, o.first};
    if (own == Origin::kCollected) {
      AddLikelihood(SideOf(side), slot, o, other == Origin::kUnknown ? 1 : partners);
    }
  });
}

/// Puts a candidate among the most probable ones.
void RelativesFinder::Take(std::size_t side, Slot slot, double total,
                           RelativesEvidence& evidence) const {
  std::optional<RankedCandidate> placed =
      RankedCandidate{slot, likelihoods_[side][slot.Value()] / total, 1, 0};
  const auto is_before = [](const RankedCandidate& a, const std::optional<RankedCandidate>& b) {
    return !b || a.probability > b->probability ||
           (a.probability == b->probability && a.slot < b->slot);
  };
  for (auto& place : evidence.weighed.ranked[side]) {
    if (placed && is_before(*placed, place)) {
      std::swap(placed, place);
    }
  }
  auto& best_alone = evidence.weighed.best_alone[side];
  const double alone = alone_[side][slot.Value()] / total;
  if (own_->MayBeAlone(slot) && (!best_alone || alone > best_alone->probability)) {
    best_alone = {slot, alone};
  }
}

void RelativesFinder::Rank(std::size_t side, double total, RelativesEvidence& evidence) {
  for (const CandidateGroup& group : own_->Groups()) {
    own_->ForEachPartnered(group, [&](std::size_t on, Slot slot, double /*partners*/) {
      if (SideOf(on) == side) {
        Take(side, slot, total, evidence);
      }
    });
  }
  for (auto& candidate : evidence.weighed.ranked[side]) {
    if (candidate) {
      candidate->alike = 0;
      for (const Slot slot : study_.identical[side].Like(candidate->slot)) {
        if (own_->MayStandFor(side, candidate->slot, slot)) {
          ++candidate->alike;
          candidate->p_all_alike += likelihoods_[side][slot.Value()] / total;
        }
      }
    }
  }
}

void RelativesFinder::Conclude(const AskedCandidates& asked, RelativesEvidence& evidence) {
  WeighedExplanations& weighed = evidence.weighed;
  const double total = Total(evidence);
  weighed.is_possible = total > 0;
  if (!weighed.is_possible) {
    return;
  }
  for (const Origins o : AllOrigins(study_.flow)) {
    weighed.p_explanation[o.Case()] += weights_[o] * evidence.mean[o] / total;
  }
  for (std::size_t side = 0; side < Sides(); ++side) {
    Rank(side, total, evidence);
  }
  for (std::size_t side = 0; side < 2; ++side) {
    if (asked[side]) {
      weighed.asked[side] = likelihoods_[SideOf(side)][asked[side]->Value()] / total;
    }
  }
  weighed.p_per_likelihood_of_pair = per_way_[{Origin::kCollected, Origin::kCollected}] / total;
}

RelativesEvidence RelativesFinder::Find(Slot offspring, const RelativesWish& wish,
                                        const RunObserver& observer) {
  if (observer.StopRequested()) {
    throw RunStopped();
  }
  const AllowedPairs& allowed = study_.AllowedFor(offspring);
  own_.emplace(study_.flow, study_.groups, allowed);
  ways_ = CountWaysOfOrigins(study_.flow, own_->Ways(), own_->HasKnownParent());
  weights_ = Weights(wish.shares, study_.flow, study_.ways);
  for (const Origins o : AllOrigins(study_.flow)) {
    per_way_[o] = ways_[o] > 0 ? weights_[o] / ways_[o] : 0;
  }
  for (std::size_t side = 0; side < Sides(); ++side) {
    std::fill(likelihoods_[side].begin(), likelihoods_[side].end(), 0.0);
    std::fill(alone_[side].begin(), alone_[side].end(), 0.0);
  }
  RelativesEvidence evidence;
  evidence.is_typed = stranger_.GoTo(offspring);
  if (evidence.is_typed) {
    sums_.GoTo(offspring, stranger_.Scales(), allowed);
    sums_.AddSibs(stranger_.OfLoci());
    FindSingles(evidence);
    FindPairs(wish, evidence, observer);
  } else {
    FillUntyped(evidence);
  }
  Conclude(wish.asked, evidence);
  return evidence;
}

}  // namespace kaldo

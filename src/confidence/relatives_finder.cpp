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
    : study_(study),
      ways_(CountWaysOfOrigins(study.flow, study.ways)),
      stranger_(study.search, study.strangers) {
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
    const double limit = LimitFor(Total(evidence), weights_[o], wish.delta);
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
    if (o.second == Origin::kCollected && study_.flow == Flow::kSexed) {
      for (const ParentSum& one : sums_.SumsOfSecond()) {
        AddLikelihood(1, one.parent, o, one.sum);
      }
    }
  }
}

/// Every likelihood is 1: what remains is how many candidates there are.
void RelativesFinder::FillUntyped(RelativesEvidence& evidence) {
  for (const Origins o : AllOrigins(study_.flow)) {
    evidence.mean[o] = ways_[o] > 0 ? 1 : 0;
    for (const CandidateGroup& group : study_.groups) {
      for (std::size_t side = 0; side < Sides(); ++side) {
        const Origin own = side == 0 ? o.first : o.second;
        const Origin other = side == 0 ? o.second : o.first;
        const SlotRange slots = side == 0 ? group.first : group.second;
        const SlotRange partners = side == 0 ? group.second : group.first;
        const double count =
            other == Origin::kUnknown
                ? 1
                : static_cast<double>(partners.Size()) - (study_.flow == Flow::kNonSexed ? 1 : 0);
        for (std::uint32_t slot = slots.begin; own == Origin::kCollected && slot < slots.end;
             ++slot) {
          AddLikelihood(side, Slot{slot}, o, count);
        }
      }
    }
  }
}

void RelativesFinder::Rank(std::size_t side, double total, RelativesEvidence& evidence) {
  auto& ranked = evidence.weighed.ranked[side];
  auto& best_alone = evidence.weighed.best_alone[side];
  const auto take = [&](std::uint32_t slot) {
    std::optional<RankedCandidate> placed =
        RankedCandidate{Slot{slot}, likelihoods_[side][slot] / total, 1, 0};
    for (auto& place : ranked) {
      if (placed && (!place || placed->probability > place->probability)) {
        std::swap(placed, place);  // equals stay in file order
      }
    }
    const double alone = alone_[side][slot] / total;
    if (!best_alone || alone > best_alone->probability) {
      best_alone = {Slot{slot}, alone};
    }
  };
  for (const CandidateGroup& group : study_.groups) {
    const SlotRange slots = side == 0 ? group.first : group.second;
    for (std::uint32_t slot = slots.begin; slot < slots.end; ++slot) {
      take(slot);
    }
  }
  for (auto& candidate : ranked) {
    if (candidate) {
      const auto alike = study_.identical[side].Like(candidate->slot);
      candidate->alike = static_cast<std::uint32_t>(alike.size());
      for (const Slot slot : alike) {
        candidate->p_all_alike += likelihoods_[side][slot.Value()] / total;
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
    sums_.GoTo(offspring, stranger_.Scales());
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

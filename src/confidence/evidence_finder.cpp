// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/evidence_finder.h"

#include <algorithm>

#include "base/problem.h"
#include "confidence/evidence_limits.h"

namespace kaldo {

namespace {

constexpr std::array<Explanation, 2> kOneCollected = {Explanation::kFirst, Explanation::kSecond};

}  // namespace

EvidenceFinder::EvidenceFinder(const EvidenceStudy& study)
    : study_(study), stranger_(study.search, study.strangers) {
  sums_.Prepare(study_.search, study_.flow, study_.groups);
  for (std::size_t side = 0; side < Sides(); ++side) {
    found_[side].resize(study_.search.parents);
  }
}

CandidateEvidence& EvidenceFinder::At(std::size_t side, Slot slot) {
  Found& found = found_[side][slot.Value()];
  if (!found.is_listed) {
    found.is_listed = true;
    listed_[side].push_back(slot);
  }
  return found.evidence;
}

/// The most likely candidates with a stranger, the likeliest first, equals in file order.
void EvidenceFinder::ListWithStranger(std::size_t side, Evidence& evidence) {
  auto& listed = evidence.most_likely[static_cast<std::size_t>(kOneCollected[side])];
  listed.clear();
  const std::size_t count = std::min(kMostCandidatesListed, with_stranger_.size());
  const auto is_before = [](const ParentLikelihood& a, const ParentLikelihood& b) {
    return a.likelihood > b.likelihood || (a.likelihood == b.likelihood && a.parent < b.parent);
  };
  std::partial_sort(with_stranger_.begin(),
                    with_stranger_.begin() + static_cast<std::ptrdiff_t>(count),
                    with_stranger_.end(), is_before);
  for (std::size_t i = 0; i < count; ++i) {
    listed.push_back({{}, with_stranger_[i].likelihood});
    listed.back().parents[side] = with_stranger_[i].parent;
  }
}

void EvidenceFinder::FindWithStranger(double limit, bool list, Evidence& evidence) {
  for (std::size_t side = 0; side < Sides(); ++side) {
    const Explanation explanation = kOneCollected[side];
    if (own_->Ways()[explanation] == 0) {
      continue;
    }
    with_stranger_.clear();
    sums_.PairWith(stranger_.OfLoci(), side == 1, Kin::kSelf, limit, with_stranger_);
    if (with_stranger_.size() < kCandidatesTold) {
      // Somebody is the most probable candidate, however improbable.
      with_stranger_.clear();
      sums_.PairWith(stranger_.OfLoci(), side == 1, Kin::kSelf, 0, with_stranger_);
    }
    double sum = 0;
    BestCandidate& best = evidence.fixed.best_with_stranger[side];
    for (const ParentLikelihood& one : with_stranger_) {
      sum += one.likelihood;
      At(side, one.parent).with_stranger = one.likelihood;
      if (!best.slot || one.likelihood > best.likelihood) {
        best = {one.parent, one.likelihood};
      }
    }
    evidence.fixed.mean[explanation] = sum / own_->Ways()[explanation];
    if (list) {
      ListWithStranger(side, evidence);
    }
  }
}

void EvidenceFinder::FindPairs(double limit, bool list, Evidence& evidence,
                               const RunObserver& observer) {
  if (own_->Ways()[Explanation::kBoth] == 0) {
    return;
  }
  sums_.SumUp(limit, list ? kMostPairsListed : 0, observer);
  for (const PairLikelihood& one : sums_.MostLikely()) {
    evidence.most_likely[static_cast<std::size_t>(Explanation::kBoth)].push_back(
        {{one.pair.parent1, one.pair.parent2}, one.likelihood});
  }
  evidence.fixed.mean[Explanation::kBoth] = sums_.Total() / own_->Ways()[Explanation::kBoth];
  for (const ParentSum& one : sums_.SumsOfFirst()) {
    At(0, one.parent).with_partners += one.sum;
  }
  for (const ParentSum& one : sums_.SumsOfSecond()) {
    At(Sides() - 1, one.parent).with_partners += one.sum;
  }
  const BestPair best = sums_.FindBest(observer);
  if (best.pairs > 0) {
    evidence.fixed.best_pair = {best.pair,
                                best.likelihood,
                                best.second,
                                best.pairs,
                                sums_.LikelihoodWith(stranger_.OfLoci(), best.pair.parent2),
                                sums_.LikelihoodWith(stranger_.OfLoci(), best.pair.parent1)};
  }
}

void EvidenceFinder::SetPartnersOfUntyped(const CandidateGroup& group, Evidence& evidence) {
  own_->ForEachPartnered(group, [&](std::size_t side, Slot slot, double partners) {
    const std::size_t shown = std::min(side, Sides() - 1);
    const double alone = own_->MayBeAlone(slot) ? 1 : 0;
    At(shown, slot) = {partners, alone};
    BestCandidate& best = evidence.fixed.best_with_stranger[shown];
    if (alone > 0 && !best.slot) {
      best = {slot, 1};
    }
  });
  if (evidence.fixed.best_pair.pairs == 0) {
    if (const auto pair = own_->FirstPair(group)) {
      const auto pairs = static_cast<std::uint64_t>(own_->Ways()[Explanation::kBoth]);
      evidence.fixed.best_pair = {*pair, 1, pairs > 1 ? 1.0 : 0.0, pairs, 1, 1};
    }
  }
}

/// Every likelihood is 1: what remains is how many candidates there are.
void EvidenceFinder::FillUntyped(Evidence& evidence) {
  for (const Explanation k : kAllExplanations) {
    evidence.fixed.mean[k] = own_->Ways()[k] > 0 ? 1 : 0;
  }
  for (const CandidateGroup& group : own_->Groups()) {
    SetPartnersOfUntyped(group, evidence);
  }
}

void EvidenceFinder::TakeShortlist(std::size_t side, Evidence& evidence) {
  auto& shortlist = evidence.shortlists[side];
  shortlist.reserve(listed_[side].size());
  for (const Slot slot : listed_[side]) {
    shortlist.push_back({slot, found_[side][slot.Value()].evidence, 1, {}});
  }
  Shorten(shortlist);
  for (ShortlistedCandidate& candidate : shortlist) {
    candidate.alike = 0;
    for (const Slot slot : study_.identical[side].Like(candidate.slot)) {
      if (!own_->MayStandFor(side, candidate.slot, slot)) {
        continue;
      }
      ++candidate.alike;
      const CandidateEvidence& one = found_[side][slot.Value()].evidence;
      candidate.all_alike.with_partners += one.with_partners;
      candidate.all_alike.with_stranger += one.with_stranger;
    }
  }
}

void EvidenceFinder::Answer(const AskedCandidates& asked, bool is_typed, Evidence& evidence) {
  for (std::size_t i = 0; i < asked.size(); ++i) {
    if (asked[i]) {
      CandidateEvidence answer = found_[Sides() == 2 ? i : 0][asked[i]->Value()].evidence;
      if (is_typed && own_->MayBeAlone(*asked[i])) {
        answer.with_stranger = sums_.LikelihoodWith(stranger_.OfLoci(), *asked[i]);
      }
      evidence.fixed.asked[i] = answer;
    }
  }
}

Evidence EvidenceFinder::Find(Slot offspring, const EvidenceWish& wish,
                              const RunObserver& observer) {
  if (observer.StopRequested()) {
    throw RunStopped();
  }
  const AllowedPairs& allowed = study_.AllowedFor(offspring);
  own_.emplace(study_.flow, study_.groups, allowed);
  Evidence evidence;
  evidence.fixed.is_typed = stranger_.GoTo(offspring);
  if (evidence.fixed.is_typed) {
    const ByExplanation<double> equal = EqualShares(own_->Ways());
    auto& mean = evidence.fixed.mean;
    auto& used = evidence.fixed.limits;
    sums_.GoTo(offspring, stranger_.Scales(), allowed);
    mean[Explanation::kNone] = own_->Ways()[Explanation::kNone] * stranger_.LikelihoodOfTwo();
    used.candidates =
        wish.limits ? wish.limits->candidates : HalfOf(LimitsFor(equal, mean)).candidates;
    FindWithStranger(used.candidates, wish.list_most_likely, evidence);
    used.pairs = wish.limits ? wish.limits->pairs : HalfOf(LimitsFor(equal, mean)).pairs;
    if (allowed.known_parent) {
      used.pairs =
          0;  // so few pairs that none is left out: without strangers they are all there is
    }
    FindPairs(used.pairs, wish.list_most_likely, evidence, observer);
  } else {
    FillUntyped(evidence);
  }
  for (std::size_t side = 0; side < Sides(); ++side) {
    TakeShortlist(side, evidence);
  }
  Answer(wish.asked, evidence.fixed.is_typed, evidence);
  for (std::size_t side = 0; side < Sides(); ++side) {
    for (const Slot slot : listed_[side]) {
      found_[side][slot.Value()] = {};
    }
    listed_[side].clear();
  }
  return evidence;
}

}  // namespace kaldo

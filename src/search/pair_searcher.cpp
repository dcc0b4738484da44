// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/pair_searcher.h"

#include <algorithm>
#include <cmath>

#include "base/problem.h"
#include "search/cost_kernels.h"

namespace kaldo {

namespace {

constexpr std::int32_t kNoLimit = 0x7fff;

// Among so few parents the plain scan is quicker than any preparation for it.
constexpr std::size_t kFewToScan = 30;

// Of so few possible parents every pair is multiplied out without asking what it costs.
constexpr std::uint32_t kFewToMultiply = 3;

// Limits are this much too wide, in costs, against rounding in logarithms and products.
constexpr double kLimitMargin = 1e-6;

// Below this likelihood products may have lost digits on their way; nothing is passed over then.
constexpr double kSmallestTrusted = 0x1p-900;

// A pair of a plain scan takes about the time in which this share of a pair is multiplied out here.
constexpr std::uint32_t kPlainShare = 8;
// A row that has multiplied out fewer pairs tells nothing about the following ones.
constexpr std::uint64_t kPairsToTell = 32;
// Rows that are scanned plainly before the bounds are tried again, at first and at most.
constexpr std::uint32_t kFewestPlainRows = 16;
constexpr std::uint32_t kMostPlainRows = 256;

}  // namespace

void PairSearcher::Prepare(const SearchStudy& study, const Candidates& candidates) {
  study_.emplace(study);
  candidates_ = candidates;
  if (study.parents > kFewToScan) {
    possible_.Prepare(study);
    direct_.Prepare(study);
    bounds_.Prepare(study);
    listed_.Prepare(study.parents);
    partner_minima_.resize(study.parents / kBlock + 1);
  }
}

void PairSearcher::Tighten(double best) {
  limit_ = kNoLimit;
  if (bounds_.AreSound() && best >= kSmallestTrusted) {
    const double costs = kCostsPerNat * (bounds_.LogLargest() - std::log(best)) + kLimitMargin;
    // At least 0, so that cutting off the fraction rounds down.
    limit_ = static_cast<std::int32_t>(std::clamp(costs, 0.0, double{kNoLimit}));
  }
}

AfterPair PairSearcher::Multiply(Place first_parent, Place partner, KeptPairs& kept) {
  const ParentPair pair = listed_.PairAt(first_parent, partner);
  const double likelihood = bounds_.Likelihood(pair);
  ++work_.multiplied;
  if (!kept.Matters(likelihood)) {
    return AfterPair::kGoOn;
  }
  const bool is_better = likelihood > kept.BestLikelihood();
  const AfterPair after = kept.Show(pair, likelihood);
  if (is_better) {
    Tighten(likelihood);
  }
  return after;
}

bool PairSearcher::LeaningsAllow(Place first_parent, Place partner, std::int32_t cost) {
  const auto wanted = std::span(wanted_leanings_).first(bounds_.LeaningWords());
  if (!wanted_are_known_) {
    const std::uint64_t* const leanings = listed_.LeaningsAt(bounds_, first_parent);
    std::transform(leanings, leanings + wanted.size(), wanted.begin(), WantedLeanings);
    wanted_are_known_ = true;
  }
  const LeaningClash clash = CompareLeanings(wanted, listed_.LeaningsAt(bounds_, partner));
  return !clash.is_impossible && cost + bounds_.CostsOfClashes().Cost(clash) <= limit_;
}

void PairSearcher::ScanRowByBounds(Place first_parent, PlaceRange partners, KeptPairs& kept) {
  const std::int32_t own_cost = listed_.CostAt(first_parent);
  const std::uint32_t end = BlockOf(partners.Last()) + 1;
  wanted_are_known_ = false;
  for (std::uint32_t block = BlockOf(partners.begin); block < end; ++block) {
    const std::int32_t left = limit_ - own_cost;
    if (block % ListedParents::kBlocksAtOnce == 0 && listed_.MinimumOfBlocksFrom(block) > left) {
      block += ListedParents::kBlocksAtOnce - 1;
      continue;
    }
    if (listed_.BlockMinimum(block) > left) {
      continue;
    }
    std::uint64_t rest = MaskAtMost(listed_.CostsOfBlock(block), static_cast<std::uint16_t>(left)) &
                         MaskOfRange(block, partners);
    for (; rest != 0; rest &= rest - 1) {
      const Place partner = LowestPlace(block, rest);
      const std::int32_t cost = own_cost + listed_.CostAt(partner);
      // The limit may have come down inside the block.
      if (cost <= limit_ && LeaningsAllow(first_parent, partner, cost) &&
          Multiply(first_parent, partner, kept) == AfterPair::kLeaveRow) {
        return;
      }
    }
  }
}

SlotRange PairSearcher::SlotsAcross(PlaceRange partners) const {
  return {listed_.SlotAt(partners.begin).Value(), listed_.SlotAt(partners.Last()).Value() + 1};
}

/// Whether so many partners stay within the limit that scanning them all plainly is quicker.
bool PairSearcher::IsCrowded(Place first_parent, PlaceRange partners) const {
  const std::int32_t left = limit_ - listed_.CostAt(first_parent);
  std::uint32_t within = 0;
  for (Place place = partners.begin; place < partners.end; ++place) {
    within += listed_.CostAt(place) <= left ? 1 : 0;
  }
  return std::size_t{within} * kPlainShare >= SlotsAcross(partners).Size();
}

void PairSearcher::ScoreParents() {
  const std::size_t loci = study_->loci.size();
  if (scores_.Loci() != loci || scores_.R(0).size() != study_->parents) {
    scores_ = TransmissionScores(loci, study_->parents);
  }
  ComputeTransmissionScores(study_->table, offspring_, study_->loci, study_->matrices, scores_);
}

/// Between the slots of two candidates stand parents that are none. A scan across them, as among
/// all parents, would take them in.
void PairSearcher::ScanCandidatesPlainly(Place first_parent, PlaceRange partners, KeptPairs& kept) {
  const Slot first = listed_.SlotAt(first_parent);
  SlotRange side_by_side{};
  for (Place place = partners.begin; place < partners.end; ++place) {
    if (listed_.CostAt(place) == ListedParents::kImpossible) {
      continue;
    }
    const std::uint32_t slot = listed_.SlotAt(place).Value();
    if (slot != side_by_side.end) {
      if (ScanRowOfPairs(scores_, first, side_by_side, kept) == AfterPair::kLeaveRow) {
        return;
      }
      side_by_side = {slot, slot};
    }
    ++side_by_side.end;
  }
  ScanRowOfPairs(scores_, first, side_by_side, kept);
}

void PairSearcher::ScanRowPlainly(Place first_parent, PlaceRange partners, KeptPairs& kept) {
  if (!scores_are_known_) {
    ScoreParents();
    scores_are_known_ = true;
  }
  ++work_.plain_rows;
  const double best = kept.BestLikelihood();
  if (has_candidates_) {
    ScanCandidatesPlainly(first_parent, partners, kept);
  } else {
    ScanRowOfPairs(scores_, listed_.SlotAt(first_parent), SlotsAcross(partners), kept);
  }
  if (kept.BestLikelihood() > best) {
    Tighten(kept.BestLikelihood());
  }
}

void PairSearcher::ScanRow(Place first_parent, PlaceRange partners, KeptPairs& kept) {
  if (plain_rows_left_ > 0) {
    --plain_rows_left_;
    if (IsCrowded(first_parent, partners)) {
      ScanRowPlainly(first_parent, partners, kept);
      return;
    }
    plain_rows_left_ = 0;
  }
  const std::uint64_t before = work_.multiplied;
  ScanRowByBounds(first_parent, partners, kept);
  const std::uint64_t multiplied = work_.multiplied - before;
  if (multiplied >= kPairsToTell && multiplied * kPlainShare >= partners.Size()) {
    plain_rows_left_ = plain_rows_next_;
    plain_rows_next_ = std::min(2 * plain_rows_next_, kMostPlainRows);
  }
}

void PairSearcher::FillPartnerMinima(PlaceRange partners) {
  const std::uint32_t first = BlockOf(partners.begin);
  const std::uint32_t end = BlockOf(partners.Last()) + 1;
  std::uint16_t minimum = ListedParents::kImpossible;
  for (std::uint32_t block = end; block > first; --block) {
    minimum = std::min(minimum, listed_.BlockMinimum(block - 1));
    partner_minima_[block - 1] = minimum;
  }
}

void PairSearcher::ScanGroup(const CandidateGroup& slots, KeptPairs& kept,
                             const RunObserver& observer) {
  const ListedGroup group = listed_.PlacesOf(slots);
  if (group.first.IsEmpty() || group.second.IsEmpty()) {
    return;
  }
  FillPartnerMinima(group.second);
  const std::uint32_t end = BlockOf(group.first.Last()) + 1;
  for (std::uint32_t block = BlockOf(group.first.begin); block < end; ++block) {
    if (observer.StopRequested()) {
      throw RunStopped();
    }
    ScanBlock(block, group, kept);
  }
}

void PairSearcher::ScanBlock(std::uint32_t block, const ListedGroup& group, KeptPairs& kept) {
  // No parent of the block has partners before those of the first one.
  const Place first = std::max(group.first.begin, BeginOfBlock(block));
  const PlaceRange widest = PartnersOf(pairing_, group, first);
  if (widest.IsEmpty()) {
    return;
  }
  const std::int32_t best_partner = partner_minima_[BlockOf(widest.begin)];
  if (listed_.BlockMinimum(block) + best_partner > limit_) {
    return;
  }
  std::uint64_t rest =
      MaskAtMost(listed_.CostsOfBlock(block), static_cast<std::uint16_t>(limit_ - best_partner)) &
      MaskOfRange(block, group.first);
  for (; rest != 0; rest &= rest - 1) {
    const Place parent = LowestPlace(block, rest);
    const PlaceRange partners = PartnersOf(pairing_, group, parent);
    // The limit may have come down inside the block.
    if (listed_.CostAt(parent) + best_partner <= limit_ && !partners.IsEmpty()) {
      ScanRow(parent, partners, kept);
    }
  }
}

void PairSearcher::MultiplyAll(const CandidateGroup& slots, KeptPairs& kept) {
  const ListedGroup group = listed_.PlacesOf(slots);
  for (Place parent = group.first.begin; parent < group.first.end; ++parent) {
    const PlaceRange partners = PartnersOf(pairing_, group, parent);
    for (Place partner = partners.begin; partner < partners.end; ++partner) {
      const ParentPair pair = listed_.PairAt(parent, partner);
      const double likelihood = direct_.Likelihood(offspring_, possible_.TypedLoci(), pair);
      if (kept.Matters(likelihood)) {
        kept.Show(pair, likelihood);  // so few pairs are all kept: no row is left early
      }
    }
  }
}

AllocationOutcome PairSearcher::Search(Slot offspring, const RunObserver& observer) {
  return Search(offspring, {}, observer);
}

AllocationOutcome PairSearcher::Search(Slot offspring, const AllowedPairs& allowed,
                                       const RunObserver& observer) {
  if (observer.StopRequested()) {
    throw RunStopped();
  }
  offspring_ = offspring;
  if (study_->parents <= kFewToScan) {
    ScoreParents();
    return ScanPairs(scores_, candidates_, allowed, observer);
  }
  const OffspringGroups groups(candidates_.flow, candidates_.groups, allowed);
  pairing_ = groups.Pairing();
  has_candidates_ = allowed.candidates.has_value();
  KeptPairs kept(candidates_.flow, candidates_.names);
  if (!possible_.Find(offspring) ||
      (has_candidates_ && !possible_.KeepAmong(*allowed.candidates))) {
    ++work_.without_two_parents;
    return OutcomeOf(kept);
  }
  listed_.List(possible_);
  if (listed_.Count() <= kFewToMultiply) {
    ++work_.among_three;
    for (const CandidateGroup& group : groups.Groups()) {
      MultiplyAll(group, kept);
    }
    return OutcomeOf(kept);
  }
  bounds_.Collect(offspring, possible_.TypedLoci(), possible_.Bits());
  listed_.AddUpCosts(bounds_);
  scores_are_known_ = false;
  plain_rows_left_ = 0;
  plain_rows_next_ = kFewestPlainRows;
  Tighten(0);
  for (const CandidateGroup& group : groups.Groups()) {
    ScanGroup(group, kept, observer);
  }
  return OutcomeOf(kept);
}

}  // namespace kaldo

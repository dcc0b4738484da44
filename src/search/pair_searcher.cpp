// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/pair_searcher.h"

#include <algorithm>
#include <bit>
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

std::uint64_t MaskOfRange(std::uint32_t block, SlotRange range) {
  const auto begin = static_cast<std::uint32_t>(block * kBlock);
  const std::uint32_t first = range.begin > begin ? range.begin - begin : 0;
  const std::uint32_t last = std::min<std::uint32_t>(range.end - begin, kBlock);
  const std::uint64_t below_last =
      last == kBlock ? ~std::uint64_t{0} : (std::uint64_t{1} << last) - 1;
  return first >= last ? 0 : below_last & (~std::uint64_t{0} << first);
}

/// The place of the lowest bit of a block's mask.
std::uint32_t PlaceOf(std::uint32_t block, std::uint64_t mask) {
  return block * static_cast<std::uint32_t>(kBlock) +
         static_cast<std::uint32_t>(std::countr_zero(mask));
}

std::uint32_t BlockOf(std::uint32_t place) { return place / static_cast<std::uint32_t>(kBlock); }

}  // namespace

void PairSearcher::Prepare(const GenotypeTable& table, std::size_t parents,
                           std::span<const LocusIndex> loci,
                           std::span<const TransmissionMatrix> matrices,
                           const Candidates& candidates) {
  table_ = &table;
  matrices_ = matrices;
  loci_.assign(loci.begin(), loci.end());
  candidates_ = candidates;
  parents_ = static_cast<std::uint32_t>(parents);
  if (parents > kFewToScan) {
    possible_.Prepare(table, parents, loci, matrices);
    direct_.Prepare(table, parents, loci, matrices);
    bounds_.Prepare(table, parents, loci, matrices);
    listed_.Prepare(parents);
    partner_minima_.resize(parents / kBlock + 1);
  }
}

void PairSearcher::Tighten(double best) {
  limit_ = kNoLimit;
  if (bounds_.Hold() && best >= kSmallestTrusted) {
    const double costs = kCostsPerNat * (bounds_.LogLargest() - std::log(best)) + kLimitMargin;
    // At least 0, so that cutting off the fraction rounds down.
    limit_ = static_cast<std::int32_t>(std::clamp(costs, 0.0, double{kNoLimit}));
  }
}

AfterPair PairSearcher::Multiply(std::uint32_t first_parent, std::uint32_t partner,
                                 KeptPairs& kept) {
  const ParentPair pair{Slot{listed_.SlotAt(first_parent)}, Slot{listed_.SlotAt(partner)}};
  const double likelihood = bounds_.Likelihood(pair.parent1.Value(), pair.parent2.Value());
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

bool PairSearcher::MarksAllow(std::uint32_t first_parent, std::uint32_t partner,
                              std::int32_t cost) {
  const auto wanted = std::span(wanted_marks_).first(bounds_.MarkWords());
  if (!wanted_are_known_) {
    const std::uint64_t* const marks = listed_.MarksAt(bounds_, first_parent);
    std::transform(marks, marks + wanted.size(), wanted.begin(), WantedMarks);
    wanted_are_known_ = true;
  }
  const MarkClash clash = CompareMarks(wanted, listed_.MarksAt(bounds_, partner));
  return !clash.is_impossible && cost + bounds_.CostsOfMarks().Of(clash) <= limit_;
}

void PairSearcher::ScanRowByBounds(std::uint32_t first_parent, SlotRange partners,
                                   KeptPairs& kept) {
  const std::uint16_t* const costs = listed_.Costs();
  const std::int32_t own_cost = costs[first_parent];
  const std::uint32_t end = BlockOf(partners.end - 1) + 1;
  wanted_are_known_ = false;
  for (std::uint32_t block = BlockOf(partners.begin); block < end; ++block) {
    const std::int32_t left = limit_ - own_cost;
    if (block % ListedParents::kBlocksAtOnce == 0 &&
        listed_.MinimumOfBlocks(block / ListedParents::kBlocksAtOnce) > left) {
      block += ListedParents::kBlocksAtOnce - 1;
      continue;
    }
    if (listed_.BlockMinimum(block) > left) {
      continue;
    }
    std::uint64_t rest = MaskAtMost(costs + block * kBlock, static_cast<std::uint16_t>(left)) &
                         MaskOfRange(block, partners);
    for (; rest != 0; rest &= rest - 1) {
      const std::uint32_t partner = PlaceOf(block, rest);
      const std::int32_t cost = own_cost + costs[partner];
      // The limit may have come down inside the block.
      if (cost <= limit_ && MarksAllow(first_parent, partner, cost) &&
          Multiply(first_parent, partner, kept) == AfterPair::kLeaveRow) {
        return;
      }
    }
  }
}

/// Whether so many partners stay within the limit that scanning them all plainly is quicker.
bool PairSearcher::IsCrowded(std::uint32_t first_parent, SlotRange partners) const {
  const std::int32_t left = limit_ - listed_.Costs()[first_parent];
  const std::uint32_t slots = listed_.SlotAt(partners.end - 1) - listed_.SlotAt(partners.begin) + 1;
  std::uint32_t within = 0;
  for (std::uint32_t place = partners.begin; place < partners.end; ++place) {
    within += listed_.Costs()[place] <= left ? 1 : 0;
  }
  return within * kPlainShare >= slots;
}

void PairSearcher::ScoreParents() {
  if (scores_.Loci() != loci_.size() || scores_.R(0).size() != parents_) {
    scores_ = TransmissionScores(loci_.size(), parents_);
  }
  ComputeTransmissionScores(*table_, offspring_, loci_, matrices_, scores_);
}

void PairSearcher::ScanRowPlainly(std::uint32_t first_parent, SlotRange partners, KeptPairs& kept) {
  if (!scores_are_known_) {
    ScoreParents();
    scores_are_known_ = true;
  }
  ++work_.plain_rows;
  const double best = kept.BestLikelihood();
  ScanRowOfPairs(scores_, listed_.SlotAt(first_parent),
                 {listed_.SlotAt(partners.begin), listed_.SlotAt(partners.end - 1) + 1}, kept);
  if (kept.BestLikelihood() > best) {
    Tighten(kept.BestLikelihood());
  }
}

void PairSearcher::ScanRow(std::uint32_t first_parent, SlotRange partners, KeptPairs& kept) {
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

void PairSearcher::FillPartnerMinima(SlotRange partners) {
  const std::uint32_t first = BlockOf(partners.begin);
  const std::uint32_t end = BlockOf(partners.end - 1) + 1;
  std::uint16_t minimum = ListedParents::kImpossible;
  for (std::uint32_t block = end; block > first; --block) {
    minimum = std::min(minimum, listed_.BlockMinimum(block - 1));
    partner_minima_[block - 1] = minimum;
  }
}

void PairSearcher::ScanGroup(const CandidateGroup& slots, KeptPairs& kept,
                             const RunObserver& observer) {
  const CandidateGroup group{listed_.PlacesOf(slots.first), listed_.PlacesOf(slots.second)};
  if (group.first.Size() == 0 || group.second.Size() == 0) {
    return;
  }
  FillPartnerMinima(group.second);
  const bool sexed = candidates_.flow == Flow::kSexed;
  const std::uint32_t first_partner_block = BlockOf(group.second.begin);
  for (std::uint32_t parent = group.first.begin; parent < group.first.end;) {
    const std::uint32_t block = BlockOf(parent);
    const std::uint32_t block_end =
        std::min(group.first.end, static_cast<std::uint32_t>((block + 1) * kBlock));
    if (observer.StopRequested()) {
      throw RunStopped();
    }
    // In the non-sexed flow partners stand behind the first parent.
    const std::int32_t best_partner = partner_minima_[sexed ? first_partner_block : block];
    if (listed_.BlockMinimum(block) + best_partner > limit_) {
      parent = block_end;
      continue;
    }
    std::uint64_t rest = MaskAtMost(listed_.Costs() + block * kBlock,
                                    static_cast<std::uint16_t>(limit_ - best_partner)) &
                         MaskOfRange(block, {parent, block_end});
    for (; rest != 0; rest &= rest - 1) {
      parent = PlaceOf(block, rest);
      const SlotRange partners = sexed ? group.second : SlotRange{parent + 1, group.second.end};
      // The limit may have come down inside the block.
      if (listed_.Costs()[parent] + best_partner <= limit_ && partners.begin < partners.end) {
        ScanRow(parent, partners, kept);
      }
    }
    parent = block_end;
  }
}

void PairSearcher::MultiplyAll(const CandidateGroup& slots, KeptPairs& kept) {
  const CandidateGroup group{listed_.PlacesOf(slots.first), listed_.PlacesOf(slots.second)};
  for (std::uint32_t parent = group.first.begin; parent < group.first.end; ++parent) {
    const SlotRange partners = PartnersOf(candidates_.flow, group, parent);
    for (std::uint32_t partner = partners.begin; partner < partners.end; ++partner) {
      const ParentPair pair{Slot{listed_.SlotAt(parent)}, Slot{listed_.SlotAt(partner)}};
      const double likelihood =
          direct_.Of(offspring_, possible_.TypedLoci(), pair.parent1, pair.parent2);
      if (kept.Matters(likelihood)) {
        kept.Show(pair, likelihood);  // so few pairs are all kept: no row is left early
      }
    }
  }
}

AllocationOutcome PairSearcher::Search(Slot offspring, const RunObserver& observer) {
  if (observer.StopRequested()) {
    throw RunStopped();
  }
  offspring_ = offspring;
  if (parents_ <= kFewToScan) {
    ScoreParents();
    return ScanPairs(scores_, candidates_, observer);
  }
  KeptPairs kept(candidates_.flow, candidates_.names);
  if (!possible_.Find(offspring)) {
    ++work_.without_two_parents;
    return OutcomeOf(kept);
  }
  listed_.List(possible_);
  if (listed_.Count() <= kFewToMultiply) {
    ++work_.among_three;
    for (const CandidateGroup& group : candidates_.groups) {
      MultiplyAll(group, kept);
    }
    return OutcomeOf(kept);
  }
  bounds_.Collect(offspring, possible_);
  listed_.AddUpCosts(bounds_);
  scores_are_known_ = false;
  plain_rows_left_ = 0;
  plain_rows_next_ = kFewestPlainRows;
  Tighten(0);
  for (const CandidateGroup& group : candidates_.groups) {
    ScanGroup(group, kept, observer);
  }
  return OutcomeOf(kept);
}

}  // namespace kaldo

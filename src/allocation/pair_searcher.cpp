// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/pair_searcher.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>

#include "allocation/cost_kernels.h"
#include "genotypes/problem.h"

namespace kaldo {

namespace {

constexpr std::int32_t kNoBounds = -1;

// The cost of a parent that cannot have given anything at some locus: above every limit.
constexpr std::uint16_t kImpossible = 0xffff;
constexpr std::int32_t kNoLimit = 0x7fff;

// Among so few parents the plain scan is quicker than any preparation for it.
constexpr std::size_t kFewToScan = 30;

// So few parents that can have given something everywhere are tried one by one.
constexpr std::size_t kFew = 32;
// The costs of more than so many parents a block are added up for the whole blocks.
constexpr std::size_t kFewPerBlock = 2;

// Limits are this much too wide, in costs, against rounding in logarithms and products.
constexpr double kLimitMargin = 1e-6;

// Below this likelihood products may have lost digits on their way; nothing is passed over then.
constexpr double kSmallestTrusted = 0x1p-900;

// Blocks whose minimum is kept together, so that a row passes over most parents in a few steps.
constexpr std::size_t kBlocksAtOnce = 16;

// Memory for the bounds of all genotypes met. When it is used up, they start anew.
constexpr std::size_t kBoundsBytes = std::size_t{128} << 20U;
constexpr std::size_t kMostBounds = 100'000;

// A class is one-sided at a ratio of its scores of no less than this.
constexpr double kLeastSideRatio = 0x1p-10;
constexpr double kLargestSideRatio = 0.25;

/// The largest share of a probability that goes to some other allele, twice (a parent has two),
/// over the smallest that stays: the ratio of scores of a parent that carries one of R and J
/// exactly. Nothing when the bounds do not hold for these matrices.
std::optional<double> SideRatio(std::span<const TransmissionMatrix> matrices,
                                std::span<const LocusIndex> loci) {
  double largest_other = 0;
  double smallest_own = 1;
  for (const LocusIndex locus : loci) {
    const TransmissionMatrix& matrix = matrices[locus.Value()];
    for (std::size_t i = 0; i < matrix.Alleles(); ++i) {
      for (std::size_t j = 0; j < matrix.Alleles(); ++j) {
        if (!(matrix(i, j) >= 0)) {
          return std::nullopt;
        }
        if (i != j) {
          largest_other = std::max(largest_other, matrix(i, j));
        }
      }
      smallest_own = std::min(smallest_own, matrix(i, i));
    }
  }
  const double ratio = smallest_own > 0 ? 1.001 * 2 * largest_other / smallest_own : 1;
  return std::max(ratio, kLeastSideRatio);
}

std::uint64_t MaskOfRange(std::uint32_t block, SlotRange range) {
  const auto begin = static_cast<std::uint32_t>(block * kBlock);
  const std::uint32_t first = range.begin > begin ? range.begin - begin : 0;
  const std::uint32_t last = std::min<std::uint32_t>(range.end - begin, kBlock);
  const std::uint64_t below_last =
      last == kBlock ? ~std::uint64_t{0} : (std::uint64_t{1} << last) - 1;
  return first >= last ? 0 : below_last & (~std::uint64_t{0} << first);
}

/// The slot of the lowest bit of a block's mask.
std::uint32_t SlotOf(std::size_t block, std::uint64_t mask) {
  return static_cast<std::uint32_t>(block * kBlock +
                                    static_cast<std::size_t>(std::countr_zero(mask)));
}

std::uint32_t BlockOf(std::uint32_t slot) { return slot / static_cast<std::uint32_t>(kBlock); }

}  // namespace

void PairSearcher::Prepare(const GenotypeTable& table, std::size_t parents,
                           std::span<const LocusIndex> loci,
                           std::span<const TransmissionMatrix> matrices,
                           const Candidates& candidates) {
  table_ = &table;
  matrices_ = matrices;
  candidates_ = candidates;
  parents_ = static_cast<std::uint32_t>(parents);
  if (parents <= kFewToScan) {
    loci_to_scan_.assign(loci.begin(), loci.end());
    scan_scores_ = TransmissionScores(loci.size(), parents);
    return;
  }
  const auto ratio = SideRatio(matrices, loci);
  bounds_hold_ = ratio.has_value();
  side_ratio_ = std::min(ratio.value_or(0), kLargestSideRatio);
  // Two one-sided vectors of the same side: their factor is at most 2t / (1 + t^2) < 2t times
  // |v1| |v2|, t being the ratio.
  one_sided_cost_ = 0;
  if (bounds_hold_) {
    one_sided_cost_ =
        static_cast<std::int32_t>(std::floor(-kCostsPerNat * std::log(2 * side_ratio_) - 1e-6));
  }

  loci_.resize(loci.size());
  for (std::size_t k = 0; k < loci.size(); ++k) {
    Locus& locus = loci_[k];
    locus.index = loci[k];
    const std::size_t alleles = matrices[loci[k].Value()].Alleles();
    locus.classes.Sort(table.Locus(loci[k]).first(parents), alleles);
    locus.bounds_of.assign(alleles * alleles, kNoBounds);
  }
  classes_by_parent_.resize(parents * loci.size());
  for (std::size_t k = 0; k < loci.size(); ++k) {
    const auto of_parents = loci_[k].classes.OfParents();
    for (std::size_t parent = 0; parent < parents; ++parent) {
      classes_by_parent_[parent * loci.size() + k] = of_parents[parent];
    }
  }
  bounds_in_use_ = 0;
  most_bounds_ = std::clamp(kBoundsBytes / (parents + 1), loci.size(), kMostBounds);

  const std::size_t blocks = (parents + kBlock - 1) / kBlock;
  const std::size_t padded = blocks * kBlock;
  possible_.resize(blocks);
  costs_.resize(padded);
  block_minima_.resize(blocks);
  group_minima_.resize((blocks + kBlocksAtOnce - 1) / kBlocksAtOnce);
  partner_minima_.resize(blocks + 1);
  parent_scores_.resize(parents);
  score_pool_.resize(2 * parents * loci.size());
  all_parents_.assign(blocks, ~std::uint64_t{0});
  if (parents % kBlock != 0) {
    all_parents_.back() = (std::uint64_t{1} << parents % kBlock) - 1;
  }
}

LocusBounds& PairSearcher::BoundsOf(std::size_t k, const LocusGenotype& offspring) {
  Locus& locus = loci_[k];
  const TransmissionMatrix& matrix = matrices_[locus.index.Value()];
  // Both orders of the offspring's alleles share their bounds.
  const auto [smaller, larger] = std::minmax(offspring.index1, offspring.index2);
  std::int32_t& place = locus.bounds_of[smaller.Value() * matrix.Alleles() + larger.Value()];
  if (place == kNoBounds) {
    place = static_cast<std::int32_t>(bounds_in_use_);
    bounds_[bounds_in_use_].Build(locus.classes, matrix, smaller, larger, side_ratio_);
    ++bounds_in_use_;
  }
  return bounds_[static_cast<std::size_t>(place)];
}

void PairSearcher::CollectBounds(Slot offspring) {
  if (bounds_in_use_ + loci_.size() > most_bounds_) {
    for (Locus& locus : loci_) {
      std::fill(locus.bounds_of.begin(), locus.bounds_of.end(), kNoBounds);
    }
    bounds_in_use_ = 0;
  }
  // Room first, so that no bounds move while they are being collected.
  bounds_.resize(std::max(bounds_.size(), bounds_in_use_ + loci_.size()));
  current_.clear();
  current_loci_.clear();
  current_scores_.clear();
  log_largest_ = 0;
  for (std::size_t k = 0; k < loci_.size(); ++k) {
    const LocusGenotype& genotype = table_->Genotype(loci_[k].index, offspring);
    // A missing locus multiplies every likelihood by exactly 1.
    if (!genotype.IsMissing()) {
      current_.push_back(&BoundsOf(k, genotype));
      current_loci_.push_back(k);
      current_scores_.push_back(current_.back()->scores.data());
      log_largest_ += current_.back()->log_largest;
    }
  }
}

void PairSearcher::FindPossibleParents() {
  possible_rows_.assign(1, all_parents_.data());
  for (const LocusBounds* bounds : current_) {
    if (!bounds->all_possible) {
      possible_rows_.push_back(bounds->possible.data());
    }
  }
  AndAll(possible_rows_, possible_);
  few_.clear();
  has_few_ = possible_rows_.size() > 1;
  for (std::size_t block = 0; has_few_ && block < possible_.size(); ++block) {
    for (std::uint64_t rest = possible_[block]; has_few_ && rest != 0; rest &= rest - 1) {
      few_.push_back(SlotOf(block, rest));
      has_few_ = few_.size() <= kFew;
    }
  }
}

void PairSearcher::AddUpCostsOfFew() {
  for (const std::uint32_t parent : few_) {
    const std::uint16_t* const classes = classes_by_parent_.data() + parent * loci_.size();
    std::uint16_t cost = 0;
    for (std::size_t i = 0; i < current_.size(); ++i) {
      const std::uint8_t added = current_[i]->cost_of_class[classes[current_loci_[i]]];
      cost = static_cast<std::uint16_t>(cost + added);
    }
    costs_[parent] = cost;
  }
}

void PairSearcher::AddUpCosts() {
  cost_rows_.clear();
  if (bounds_hold_) {
    for (std::size_t i = 0; i < current_.size(); ++i) {
      if (current_[i]->costs.empty()) {
        current_[i]->AddCostsOfParents(loci_[current_loci_[i]].classes);
      }
      cost_rows_.push_back(current_[i]->costs.data());
    }
  }
  SumCosts(cost_rows_, possible_, kImpossible, costs_.data(), block_minima_.data());
  for (std::size_t many = 0; many < group_minima_.size(); ++many) {
    const std::size_t begin = many * kBlocksAtOnce;
    const std::size_t end = std::min(begin + kBlocksAtOnce, block_minima_.size());
    group_minima_[many] =
        *std::min_element(block_minima_.begin() + static_cast<std::ptrdiff_t>(begin),
                          block_minima_.begin() + static_cast<std::ptrdiff_t>(end));
  }
}

const PairSearcher::ParentScores& PairSearcher::ScoresOf(std::uint32_t parent) {
  ParentScores& scores = parent_scores_[parent];
  if (scores.epoch == epoch_) {
    return scores;
  }
  scores = {0, 0, epoch_};
  const std::uint16_t* const classes = classes_by_parent_.data() + parent * loci_.size();
  double* const pool = score_pool_.data() + loci_.size() * 2 * parent;
  for (std::size_t i = 0; i < current_.size(); ++i) {
    const LocusBounds::Scores& of_class = current_scores_[i][classes[current_loci_[i]]];
    pool[2 * i] = of_class.r;
    pool[2 * i + 1] = of_class.j;
    scores.hardly_j |= std::uint64_t{of_class.hardly_j} << i;
    scores.hardly_r |= std::uint64_t{of_class.hardly_r} << i;
  }
  return scores;
}

double PairSearcher::Likelihood(std::uint32_t one, std::uint32_t two) const {
  if (current_.empty()) {
    return 1;
  }
  const double* const scores1 = score_pool_.data() + loci_.size() * 2 * one;
  const double* const scores2 = score_pool_.data() + loci_.size() * 2 * two;
  double product = scores1[0] * scores2[1] + scores1[1] * scores2[0];
  for (std::size_t i = 1; i < current_.size(); ++i) {
    product *= scores1[2 * i] * scores2[2 * i + 1] + scores1[2 * i + 1] * scores2[2 * i];
  }
  return product;
}

void PairSearcher::Tighten(double best) {
  limit_ = kNoLimit;
  if (bounds_hold_ && best >= kSmallestTrusted) {
    const double costs = kCostsPerNat * (2 * log_largest_ - std::log(best)) + kLimitMargin;
    limit_ = static_cast<std::int32_t>(std::clamp(std::floor(costs), 0.0, double{kNoLimit}));
  }
}

AfterPair PairSearcher::TryPair(std::uint32_t first_parent, std::uint32_t partner,
                                KeptPairs& kept) {
  const std::int32_t cost = costs_[first_parent] + costs_[partner];
  if (cost > limit_) {
    return AfterPair::kGoOn;
  }
  const ParentScores& one = ScoresOf(first_parent);
  const ParentScores& two = ScoresOf(partner);
  const int conflicts =
      std::popcount((one.hardly_j & two.hardly_j) | (one.hardly_r & two.hardly_r));
  if (cost + conflicts * one_sided_cost_ > limit_) {
    return AfterPair::kGoOn;
  }
  const double likelihood = Likelihood(first_parent, partner);
  if (!kept.Matters(likelihood)) {
    return AfterPair::kGoOn;
  }
  const bool is_better = likelihood > kept.BestLikelihood();
  const AfterPair after = kept.Show({Slot{first_parent}, Slot{partner}}, likelihood);
  if (is_better) {
    Tighten(likelihood);
  }
  return after;
}

void PairSearcher::ScanFew(const CandidateGroup& group, KeptPairs& kept) {
  const auto in = [](SlotRange range, std::uint32_t slot) {
    return slot >= range.begin && slot < range.end;
  };
  for (const std::uint32_t first_parent : few_) {
    if (!in(group.first, first_parent)) {
      continue;
    }
    const SlotRange partners = PartnersOf(candidates_.flow, group, first_parent);
    for (const std::uint32_t partner : few_) {
      if (in(partners, partner) && TryPair(first_parent, partner, kept) == AfterPair::kLeaveRow) {
        break;
      }
    }
  }
}

void PairSearcher::ScanRow(std::uint32_t first_parent, SlotRange partners, KeptPairs& kept) {
  const std::int32_t own_cost = costs_[first_parent];
  const std::uint32_t end = BlockOf(partners.end - 1) + 1;
  for (std::uint32_t block = BlockOf(partners.begin); block < end;) {
    const std::int32_t left = limit_ - own_cost;
    if (block % kBlocksAtOnce == 0 && group_minima_[block / kBlocksAtOnce] > left) {
      block += kBlocksAtOnce;
      continue;
    }
    if (block_minima_[block] <= left) {
      const std::uint64_t mask =
          MaskAtMost(costs_.data() + block * kBlock, static_cast<std::uint16_t>(left)) &
          MaskOfRange(block, partners);
      for (std::uint64_t rest = mask; rest != 0; rest &= rest - 1) {
        if (TryPair(first_parent, SlotOf(block, rest), kept) == AfterPair::kLeaveRow) {
          return;
        }
      }
    }
    ++block;
  }
}

void PairSearcher::FillPartnerMinima(const CandidateGroup& group) {
  const std::uint32_t first = BlockOf(group.second.begin);
  const std::uint32_t end = BlockOf(group.second.end - 1) + 1;
  std::uint16_t minimum = kImpossible;
  for (std::uint32_t block = end; block > first; --block) {
    minimum = std::min(minimum, block_minima_[block - 1]);
    partner_minima_[block - 1] = minimum;
  }
}

void PairSearcher::ScanGroup(const CandidateGroup& group, KeptPairs& kept,
                             const RunObserver& observer) {
  if (group.first.Size() == 0 || group.second.Size() == 0) {
    return;
  }
  FillPartnerMinima(group);
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
    if (block_minima_[block] + best_partner > limit_) {
      parent = block_end;
      continue;
    }
    for (; parent < block_end; ++parent) {
      const SlotRange partners = PartnersOf(candidates_.flow, group, parent);
      if (costs_[parent] + best_partner <= limit_ && partners.begin < partners.end) {
        ScanRow(parent, partners, kept);
      }
    }
  }
}

AllocationOutcome PairSearcher::Search(Slot offspring, const RunObserver& observer) {
  if (observer.StopRequested()) {
    throw RunStopped();
  }
  if (parents_ <= kFewToScan) {
    ComputeTransmissionScores(*table_, offspring, loci_to_scan_, matrices_, scan_scores_);
    return ScanPairs(scan_scores_, candidates_, observer);
  }
  ++epoch_;
  CollectBounds(offspring);
  FindPossibleParents();
  KeptPairs kept(candidates_.flow, candidates_.names);
  Tighten(0);
  if (has_few_ && few_.size() < 2) {
    return OutcomeOf(kept);
  }
  if (has_few_) {
    if (few_.size() > kFewPerBlock * possible_.size()) {
      AddUpCosts();
    } else {
      AddUpCostsOfFew();
    }
    for (const CandidateGroup& group : candidates_.groups) {
      ScanFew(group, kept);
    }
  } else {
    AddUpCosts();
    for (const CandidateGroup& group : candidates_.groups) {
      ScanGroup(group, kept, observer);
    }
  }
  return OutcomeOf(kept);
}

}  // namespace kaldo

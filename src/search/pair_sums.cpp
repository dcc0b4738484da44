// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/pair_sums.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "base/problem.h"
#include "search/cost_kernels.h"

namespace kaldo {

namespace {

// Partners whose likelihoods are computed together, so that they stay in the nearest cache.
constexpr std::size_t kPartnersAtOnce = 128;

constexpr std::uint16_t kNobody = 0xffff;
constexpr std::int32_t kNoLimit = 0x7fff;
constexpr std::uint32_t kNowhere = 0xffff'ffff;

// Limits are this much too wide, in costs, against rounding in logarithms and products.
constexpr double kLimitMargin = 1e-6;

// Where two pairs have to be found first: so many costs above the smallest, then twice as many.
constexpr std::int32_t kFirstCosts = 64;

/// The order of a list of pairs: equally likely ones stand as in the file, so that where the list
/// ends does not depend on the order in which they were met.
bool IsBefore(const PairLikelihood& a, const PairLikelihood& b) {
  if (a.likelihood != b.likelihood) {
    return a.likelihood > b.likelihood;
  }
  return std::pair(a.pair.parent1, a.pair.parent2) < std::pair(b.pair.parent1, b.pair.parent2);
}

/// Sums of every fourth value, added in the end: a fixed order that does not wait for each sum.
double SumOf(std::span<const double> values) {
  std::array<double, 4> sums{};
  const std::size_t whole = values.size() / 4 * 4;
  for (std::size_t i = 0; i < whole; i += 4) {
    for (std::size_t lane = 0; lane < 4; ++lane) {
      sums[lane] += values[i + lane];
    }
  }
  for (std::size_t i = whole; i < values.size(); ++i) {
    sums[0] += values[i];
  }
  return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

double Factor(PairSums::Scores one, PairSums::Scores other) {
  return one.r * other.j + one.j * other.r;
}

double LogLengthOf(PairSums::Scores scores) { return std::log(std::hypot(scores.r, scores.j)); }

}  // namespace

void PairSums::Prepare(const SearchStudy& study, Flow flow,
                       std::span<const CandidateGroup> groups) {
  study_.emplace(study);
  flow_ = flow;
  groups_ = groups;
  bounds_.Prepare(study);
  const std::size_t blocks = (study.parents + kBlock - 1) / kBlock;
  candidates_.resize(blocks);
  for (ClassScores& scored : scored_) {
    scored.costs.resize(blocks * kBlock);
  }
  minima_.resize(blocks);
  place_of_partner_.resize(study.parents);
}

void PairSums::MarkCandidates(const AllowedPairs& allowed) {
  std::fill(candidates_.begin(), candidates_.end(),
            allowed.candidates ? std::uint64_t{0} : ~std::uint64_t{0});
  if (allowed.candidates) {
    for (const Slot slot : *allowed.candidates) {
      candidates_[slot.Value() / kBlock] |= std::uint64_t{1} << slot.Value() % kBlock;
    }
  }
}

void PairSums::GoTo(Slot offspring, std::span<const double> scales, const AllowedPairs& allowed) {
  own_.emplace(flow_, groups_, allowed);
  MarkCandidates(allowed);
  typed_.clear();
  for (std::uint32_t k = 0; k < study_->loci.size(); ++k) {
    if (!study_->Genotypes(k)[offspring.Value()].IsMissing()) {
      typed_.push_back(k);
    }
  }
  bounds_.Collect(offspring, typed_, candidates_);
  ClassScores& own = scored_[0];
  bounds_.AddUpCosts(kNobody, own.costs, minima_);
  own.log_largest = bounds_.LogLargestOfOne();
  own.first.clear();
  own.scores.clear();
  for (const std::uint32_t k : typed_) {
    own.log_largest += std::log(scales[k]);
    own.first.push_back(own.scores.size());
    ScoreClasses(k, study_->Genotypes(k)[offspring.Value()], scales[k]);
  }
}

/// The bounds of a genotype serve both orders of its alleles; these scores are in its own order.
void PairSums::ScoreClasses(std::size_t k, const LocusGenotype& offspring, double scale) {
  const TransmissionMatrix& matrix = study_->Matrix(k);
  const std::size_t r = offspring.index1.Value();
  const std::size_t j = offspring.index2.Value();
  const ParentClasses& classes = bounds_.Classes(k);
  for (std::size_t number = 0; number < classes.Count(); ++number) {
    const std::size_t p1 = classes.Genotype(number).index1.Value();
    const std::size_t p2 = classes.Genotype(number).index2.Value();
    scored_[0].scores.push_back(
        {(matrix(p1, r) + matrix(p2, r)) * scale, (matrix(p1, j) + matrix(p2, j)) * scale});
  }
}

void PairSums::AddSibs(std::span<const Scores> stranger) {
  const ClassScores& own = scored_[0];
  ClassScores& sibs = scored_[1];
  sibs.first = own.first;
  sibs.scores.clear();
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    const Scores other = stranger[typed_[i]];
    for (std::size_t at = own.first[i]; at < own.End(i); ++at) {
      sibs.scores.push_back({(own.scores[at].r + other.r) / 2, (own.scores[at].j + other.j) / 2});
    }
  }
  AddUpCostsOfSibs();
}

void PairSums::AddUpCostsOfSibs() {
  ClassScores& sibs = scored_[1];
  sibs.log_largest = 0;
  std::fill(sibs.costs.begin(), sibs.costs.end(), std::uint16_t{0});
  std::vector<double> log_lengths;
  std::vector<std::uint8_t> costs;
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    log_lengths.clear();
    for (std::size_t at = sibs.first[i]; at < sibs.End(i); ++at) {
      log_lengths.push_back(LogLengthOf(sibs.scores[at]));
    }
    const double largest = *std::max_element(log_lengths.begin(), log_lengths.end());
    sibs.log_largest += largest;
    costs.clear();
    for (const double log_length : log_lengths) {
      costs.push_back(CostOf(log_length, largest));
    }
    const auto classes = bounds_.Classes(typed_[i]).OfParents();
    for (std::size_t slot = 0; slot < classes.size(); ++slot) {
      sibs.costs[slot] = static_cast<std::uint16_t>(sibs.costs[slot] + costs[classes[slot]]);
    }
  }
  for (std::size_t slot = 0; slot < sibs.costs.size(); ++slot) {
    if (scored_[0].costs[slot] == kNobody) {
      sibs.costs[slot] = kNobody;
    }
  }
}

std::int32_t PairSums::CostLimit(double limit) const {
  if (limit == 0) {
    return kNoLimit;
  }
  const double largest = Scored(kin_[0]).log_largest + Scored(kin_[1]).log_largest;
  const double costs = kCostsPerNat * (largest - std::log(limit)) + kLimitMargin;
  // Rounded down; below 0 no pair comes near the limit.
  return static_cast<std::int32_t>(std::floor(std::clamp(costs, -1.0, double{kNoLimit})));
}

std::int32_t PairSums::SmallestCostOfAnyPair() const {
  std::int32_t smallest = kNoLimit;
  for (const CandidateGroup& group : own_->Groups()) {
    if (group.first.Size() > 0 && group.second.Size() > 0) {
      smallest = std::min(
          smallest, scored_[0].SmallestCost(group.first) + scored_[0].SmallestCost(group.second));
    }
  }
  return smallest;
}

/// Lists the parents of a group that may be in a pair within the limit; false without any.
bool PairSums::Arrange(const CandidateGroup& group) {
  if (group.first.Size() == 0 || group.second.Size() == 0) {
    return false;
  }
  const ClassScores& first = Scored(kin_[0]);
  const ClassScores& second = Scored(kin_[1]);
  sides_[0].Rank(group.first, first, cost_limit_ - second.SmallestCost(group.second), bounds_);
  if (!SharesList()) {
    sides_[1].Rank(group.second, second, cost_limit_ - first.SmallestCost(group.first), bounds_);
  }
  if (MayMeetItself()) {
    std::fill(place_of_partner_.begin(), place_of_partner_.end(), kNowhere);
    for (std::uint32_t i = 0; i < sides_[1].Count(); ++i) {
      place_of_partner_[sides_[1].SlotAt(i).Value()] = i;
    }
  }
  return sides_[0].Count() > 0 && Partners().Count() > 0;
}

/// Nobody is paired with itself or its own sib.
void PairSums::LeaveOutItself(std::size_t first_parent, std::size_t begin,
                              std::span<double> likelihoods) const {
  const std::uint32_t place = place_of_partner_[sides_[0].SlotAt(first_parent).Value()];
  if (place != kNowhere && place >= begin && place - begin < likelihoods.size()) {
    likelihoods[place - begin] = 0;
  }
}

template <typename TakeRow>
void PairSums::WalkGroup(const RunObserver& observer, const TakeRow& take_row) {
  std::array<double, kPartnersAtOnce> likelihoods;
  const RankedParents& first = sides_[0];
  const RankedParents& partners = Partners();
  const auto costs = partners.Costs();
  for (std::size_t parent = 0; parent < first.Count(); ++parent) {
    if (observer.StopRequested()) {
      throw RunStopped();
    }
    const std::int32_t own = first.Costs()[parent];
    // Every pair of one list comes once: the dearer parent is the partner.
    std::size_t begin = SharesList() ? parent + 1 : 0;
    // The limit may come down on the way.
    while (begin < partners.Count() && own + costs[begin] <= cost_limit_) {
      const auto left = static_cast<std::uint16_t>(cost_limit_ - own);
      const auto from = costs.begin() + static_cast<std::ptrdiff_t>(begin);
      const auto to =
          from + static_cast<std::ptrdiff_t>(std::min(kPartnersAtOnce, partners.Count() - begin));
      const auto count = static_cast<std::size_t>(std::upper_bound(from, to, left) - from);
      const auto row = std::span(likelihoods).first(count);
      first.Multiply(parent, partners, begin, row);
      if (MayMeetItself()) {
        LeaveOutItself(parent, begin, row);
      }
      take_row(parent, begin, row);
      begin += count;
    }
  }
}

template <typename TakeRow>
void PairSums::Walk(const RunObserver& observer, const TakeRow& take_row) {
  for (const CandidateGroup& group : own_->Groups()) {
    if (Arrange(group)) {
      WalkGroup(observer, take_row);
    }
  }
}

ParentPair PairSums::PairAt(std::size_t first_parent, std::size_t partner) const {
  const Slot one = sides_[0].SlotAt(first_parent);
  const Slot other = Partners().SlotAt(partner);
  return flow_ == Flow::kSexed || one < other ? ParentPair{one, other} : ParentPair{other, one};
}

void PairSums::CompareRow(std::size_t first_parent, std::size_t begin,
                          std::span<const double> likelihoods) {
  for (std::size_t i = 0; i < likelihoods.size(); ++i) {
    const double likelihood = likelihoods[i];
    if (likelihood <= best_.second && likelihood != best_.likelihood) {
      continue;
    }
    const ParentPair pair = PairAt(first_parent, begin + i);
    if (likelihood > best_.likelihood) {
      best_ = {pair, likelihood, best_.likelihood, 1};
    } else if (likelihood < best_.likelihood) {
      best_.second = likelihood;
    } else if (likelihood > 0) {
      best_.second = likelihood;
      ++best_.pairs;
      const auto order = [](ParentPair p) { return std::tuple(p.parent1, p.parent2); };
      best_.pair = order(pair) < order(best_.pair) ? pair : best_.pair;
    }
  }
}

void PairSums::AddRow(std::size_t first_parent, std::size_t begin,
                      std::span<const double> likelihoods) {
  const double sum = SumOf(likelihoods);
  total_ += sum;
  sides_[0].Sums()[first_parent] += sum;
  double* const sums = Partners().Sums().data() + begin;
  for (std::size_t i = 0; i < likelihoods.size(); ++i) {
    sums[i] += likelihoods[i];
  }
}

void PairSums::ListRow(std::size_t first_parent, std::size_t begin,
                       std::span<const double> likelihoods, std::size_t most) {
  for (std::size_t i = 0; i < likelihoods.size(); ++i) {
    const bool is_full = most_likely_.size() == most;
    if (likelihoods[i] == 0 || (is_full && likelihoods[i] < most_likely_.front().likelihood)) {
      continue;
    }
    const PairLikelihood one = {PairAt(first_parent, begin + i), likelihoods[i]};
    if (is_full) {
      if (!IsBefore(one, most_likely_.front())) {
        continue;
      }
      std::pop_heap(most_likely_.begin(), most_likely_.end(), IsBefore);
      most_likely_.pop_back();
    }
    most_likely_.push_back(one);
    std::push_heap(most_likely_.begin(), most_likely_.end(), IsBefore);
  }
}

void PairSums::TakeSums() {
  for (std::size_t side = 0; side < (SharesList() ? 1U : 2U); ++side) {
    const auto sums = sides_[side].Sums();
    for (std::size_t i = 0; i < sums.size(); ++i) {
      if (sums[i] > 0) {
        sums_[side].push_back({sides_[side].SlotAt(i), sums[i]});
      }
    }
  }
}

void PairSums::Begin(Kin first, Kin second, double limit) {
  total_ = 0;
  sums_[0].clear();
  sums_[1].clear();
  kin_ = {first, second};
  cost_limit_ = CostLimit(limit);
}

void PairSums::SumUp(Kin first, Kin second, double limit, const RunObserver& observer) {
  Begin(first, second, limit);
  for (const CandidateGroup& group : own_->Groups()) {
    if (Arrange(group)) {
      WalkGroup(observer,
                [this](std::size_t parent, std::size_t begin, std::span<const double> likelihoods) {
                  AddRow(parent, begin, likelihoods);
                });
      TakeSums();
    }
  }
}

void PairSums::SumUp(double limit, std::size_t most_listed, const RunObserver& observer) {
  Begin(Kin::kSelf, Kin::kSelf, limit);
  most_likely_.clear();
  best_ = {};
  limit_ = limit;
  for (const CandidateGroup& group : own_->Groups()) {
    if (Arrange(group)) {
      WalkGroup(observer, [this, most_listed](std::size_t parent, std::size_t begin,
                                              std::span<const double> likelihoods) {
        AddRow(parent, begin, likelihoods);
        CompareRow(parent, begin, likelihoods);
        if (most_listed > 0) {
          ListRow(parent, begin, likelihoods, most_listed);
        }
      });
      TakeSums();
    }
  }
  std::sort_heap(most_likely_.begin(), most_likely_.end(), IsBefore);
}

BestPair PairSums::FindBest(const RunObserver& observer) {
  if (best_.second >= limit_) {
    return best_;  // all pairs as good as the second best were summed up
  }
  const std::int32_t smallest = SmallestCostOfAnyPair();
  for (std::int32_t costs = kFirstCosts; best_.second == 0 && smallest + costs / 2 < kNoLimit;
       costs *= 2) {
    best_ = {};
    cost_limit_ = std::min(smallest + costs, kNoLimit);
    Walk(observer,
         [this](std::size_t parent, std::size_t begin, std::span<const double> likelihoods) {
           CompareRow(parent, begin, likelihoods);
         });
  }
  // Two pairs are known: whatever is below the worse of them does not matter.
  cost_limit_ = CostLimit(best_.second);
  best_ = {};
  Walk(observer,
       [this](std::size_t parent, std::size_t begin, std::span<const double> likelihoods) {
         const double second = best_.second;
         CompareRow(parent, begin, likelihoods);
         if (best_.second > second) {
           cost_limit_ = std::min(cost_limit_, CostLimit(best_.second));
         }
       });
  return best_;
}

void PairSums::PairWith(std::span<const Scores> partner, bool second_parents, Kin kin, double limit,
                        std::vector<ParentLikelihood>& likelihoods) {
  const ClassScores& scored = Scored(kin);
  double log_largest = scored.log_largest;
  class_factors_.resize(scored.scores.size());
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    const Scores with = partner[typed_[i]];
    log_largest += LogLengthOf(with);
    for (std::size_t at = scored.first[i]; at < scored.End(i); ++at) {
      class_factors_[at] = Factor(scored.scores[at], with);
    }
  }
  const double most =
      limit == 0 ? kNoLimit : kCostsPerNat * (log_largest - std::log(limit)) + kLimitMargin;
  for (const CandidateGroup& group : own_->Groups()) {
    const SlotRange range = second_parents ? group.second : group.first;
    for (std::uint32_t slot = range.begin; slot < range.end; ++slot) {
      if (scored.costs[slot] <= most) {
        likelihoods.push_back({Slot{slot}, MultiplyFactors(Slot{slot})});
      }
    }
  }
}

double PairSums::MultiplyFactors(Slot parent) const {
  const std::uint16_t* const classes = bounds_.ClassesOf(parent);
  double product = 1;
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    product *= class_factors_[scored_[0].first[i] + classes[typed_[i]]];
  }
  return product;
}

double PairSums::LikelihoodWith(std::span<const Scores> partner, Slot parent) const {
  const std::uint16_t* const classes = bounds_.ClassesOf(parent);
  double product = 1;
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    product *=
        Factor(scored_[0].scores[scored_[0].first[i] + classes[typed_[i]]], partner[typed_[i]]);
  }
  return product;
}

}  // namespace kaldo

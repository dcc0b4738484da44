// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/pair_sums.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "base/problem.h"
#include "search/cost_kernels.h"

namespace kaldo {

namespace {

// Partners whose likelihoods are computed together, so that they stay in the nearest cache.
constexpr std::size_t kPartnersAtOnce = 128;

// Parents whose scores are looked up together, for the same reason.
constexpr std::size_t kParentsAtOnce = 64;

constexpr std::uint16_t kNobody = 0xffff;
constexpr std::int32_t kNoLimit = 0x7fff;

// Limits are this much too wide, in costs, against rounding in logarithms and products.
constexpr double kLimitMargin = 1e-6;

// Where two pairs have to be found first: so many costs above the smallest, then twice as many.
constexpr std::int32_t kFirstCosts = 64;

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

double LogLength(PairSums::Scores scores) { return std::log(std::hypot(scores.r, scores.j)); }

}  // namespace

void PairSums::Prepare(const SearchStudy& study, Flow flow,
                       std::span<const CandidateGroup> groups) {
  study_.emplace(study);
  flow_ = flow;
  groups_ = groups;
  bounds_.Prepare(study);
  const std::size_t blocks = (study.parents + kBlock - 1) / kBlock;
  everybody_.assign(blocks, ~std::uint64_t{0});
  costs_.resize(blocks * kBlock);
  minima_.resize(blocks);
}

void PairSums::GoTo(Slot offspring, std::span<const double> scales) {
  typed_.clear();
  for (std::uint32_t k = 0; k < study_->loci.size(); ++k) {
    if (!study_->Genotypes(k)[offspring.Value()].IsMissing()) {
      typed_.push_back(k);
    }
  }
  bounds_.Collect(offspring, typed_, everybody_);
  bounds_.AddUpCosts(kNobody, costs_, minima_);
  log_scale_ = 0;
  first_class_.clear();
  class_scores_.clear();
  for (const std::uint32_t k : typed_) {
    log_scale_ += 2 * std::log(scales[k]);
    first_class_.push_back(class_scores_.size());
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
    class_scores_.push_back(
        {(matrix(p1, r) + matrix(p2, r)) * scale, (matrix(p1, j) + matrix(p2, j)) * scale});
  }
}

std::int32_t PairSums::CostLimit(double limit) const {
  if (limit == 0) {
    return kNoLimit;
  }
  const double costs =
      kCostsPerNat * (bounds_.LogLargest() + log_scale_ - std::log(limit)) + kLimitMargin;
  // Rounded down; below 0 no pair comes near the limit.
  return static_cast<std::int32_t>(std::floor(std::clamp(costs, -1.0, double{kNoLimit})));
}

std::int32_t PairSums::SmallestCost(SlotRange slots) const {
  return *std::min_element(costs_.begin() + slots.begin, costs_.begin() + slots.end);
}

std::int32_t PairSums::SmallestCostOfAnyPair() const {
  std::int32_t smallest = kNoLimit;
  for (const CandidateGroup& group : groups_) {
    if (group.first.Size() > 0 && group.second.Size() > 0) {
      smallest = std::min(smallest, SmallestCost(group.first) + SmallestCost(group.second));
    }
  }
  return smallest;
}

void PairSums::SortByCost(SlotRange slots, std::int32_t most, Side& side) {
  order_.clear();
  for (std::uint32_t slot = slots.begin; slot < slots.end; ++slot) {
    if (costs_[slot] <= most) {
      order_.push_back(std::uint64_t{costs_[slot]} << 32U | slot);
    }
  }
  std::sort(order_.begin(), order_.end());
  side.slots.clear();
  side.costs.clear();
  for (const std::uint64_t one : order_) {
    side.slots.emplace_back(static_cast<std::uint32_t>(one));
    side.costs.push_back(static_cast<std::uint16_t>(one >> 32U));
  }
  side.sums.assign(side.Count(), 0);
  LookUpScores(side);
}

void PairSums::LookUpScores(Side& side) const {
  const std::size_t count = side.Count();
  side.scores.resize(2 * count * typed_.size());
  for (std::size_t begin = 0; begin < count; begin += kParentsAtOnce) {
    const std::size_t end = std::min(begin + kParentsAtOnce, count);
    double* r = side.scores.data();
    for (std::size_t i = 0; i < typed_.size(); ++i) {
      double* const j = r + count;
      const Scores* const of_classes = class_scores_.data() + first_class_[i];
      for (std::size_t parent = begin; parent < end; ++parent) {
        const Scores scores = of_classes[bounds_.ClassesOf(side.slots[parent])[typed_[i]]];
        r[parent] = scores.r;
        j[parent] = scores.j;
      }
      r += 2 * count;
    }
  }
}

/// Lists the parents of a group that may be in a pair within the limit; false without any.
bool PairSums::Arrange(const CandidateGroup& group) {
  if (group.first.Size() == 0 || group.second.Size() == 0) {
    return false;
  }
  SortByCost(group.first, cost_limit_ - SmallestCost(group.second), sides_[0]);
  if (flow_ == Flow::kSexed) {
    SortByCost(group.second, cost_limit_ - SmallestCost(group.first), sides_[1]);
  }
  return sides_[0].Count() > 0 && Partners().Count() > 0;
}

void PairSums::MultiplyRow(std::size_t first_parent, std::size_t begin,
                           std::span<double> likelihoods) const {
  const std::size_t first_count = sides_[0].Count();
  const std::size_t partner_count = Partners().Count();
  const double* first = sides_[0].scores.data() + first_parent;
  const double* partners = Partners().scores.data() + begin;
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    const double r1 = first[0];
    const double j1 = first[first_count];
    const double* const r2 = partners;
    const double* const j2 = partners + partner_count;
    if (i == 0) {
      for (std::size_t n = 0; n < likelihoods.size(); ++n) {
        likelihoods[n] = r1 * j2[n] + j1 * r2[n];
      }
    } else {
      for (std::size_t n = 0; n < likelihoods.size(); ++n) {
        likelihoods[n] *= r1 * j2[n] + j1 * r2[n];
      }
    }
    first += 2 * first_count;
    partners += 2 * partner_count;
  }
}

template <typename TakeRow>
void PairSums::WalkGroup(const RunObserver& observer, const TakeRow& take_row) {
  std::array<double, kPartnersAtOnce> likelihoods;
  const Side& first = sides_[0];
  const Side& partners = Partners();
  for (std::size_t parent = 0; parent < first.Count(); ++parent) {
    if (observer.StopRequested()) {
      throw RunStopped();
    }
    // Every pair of the non-sexed flow comes once: the dearer parent is the partner.
    std::size_t begin = flow_ == Flow::kSexed ? 0 : parent + 1;
    // The limit may come down on the way.
    while (begin < partners.Count() && first.costs[parent] + partners.costs[begin] <= cost_limit_) {
      const auto left = static_cast<std::uint16_t>(cost_limit_ - first.costs[parent]);
      const auto from = partners.costs.begin() + static_cast<std::ptrdiff_t>(begin);
      const auto to =
          from + static_cast<std::ptrdiff_t>(std::min(kPartnersAtOnce, partners.Count() - begin));
      const auto count = static_cast<std::size_t>(std::upper_bound(from, to, left) - from);
      const auto row = std::span(likelihoods).first(count);
      MultiplyRow(parent, begin, row);
      take_row(parent, begin, row);
      begin += count;
    }
  }
}

template <typename TakeRow>
void PairSums::Walk(const RunObserver& observer, const TakeRow& take_row) {
  for (const CandidateGroup& group : groups_) {
    if (Arrange(group)) {
      WalkGroup(observer, take_row);
    }
  }
}

ParentPair PairSums::PairAt(std::size_t first_parent, std::size_t partner) const {
  const Slot one = sides_[0].slots[first_parent];
  const Slot other = Partners().slots[partner];
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
  sides_[0].sums[first_parent] += sum;
  double* const sums = Partners().sums.data() + begin;
  for (std::size_t i = 0; i < likelihoods.size(); ++i) {
    sums[i] += likelihoods[i];
  }
}

void PairSums::ListRow(std::size_t first_parent, std::size_t begin,
                       std::span<const double> likelihoods, std::size_t most) {
  const auto is_more_likely = [](const PairLikelihood& a, const PairLikelihood& b) {
    return a.likelihood > b.likelihood;
  };
  for (std::size_t i = 0; i < likelihoods.size(); ++i) {
    if (most_likely_.size() == most) {
      if (likelihoods[i] <= most_likely_.front().likelihood) {
        continue;
      }
      std::pop_heap(most_likely_.begin(), most_likely_.end(), is_more_likely);
      most_likely_.pop_back();
    }
    most_likely_.push_back({PairAt(first_parent, begin + i), likelihoods[i]});
    std::push_heap(most_likely_.begin(), most_likely_.end(), is_more_likely);
  }
}

void PairSums::TakeSums() {
  for (std::size_t side = 0; side < (flow_ == Flow::kSexed ? 2U : 1U); ++side) {
    for (std::size_t i = 0; i < sides_[side].Count(); ++i) {
      if (sides_[side].sums[i] > 0) {
        sums_[side].push_back({sides_[side].slots[i], sides_[side].sums[i]});
      }
    }
  }
}

void PairSums::SumUp(double limit, std::size_t most_listed, const RunObserver& observer) {
  total_ = 0;
  most_likely_.clear();
  sums_[0].clear();
  sums_[1].clear();
  best_ = {};
  limit_ = limit;
  cost_limit_ = CostLimit(limit);
  for (const CandidateGroup& group : groups_) {
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

std::size_t PairSums::EndOfClasses(std::size_t i) const {
  return i + 1 < first_class_.size() ? first_class_[i + 1] : class_scores_.size();
}

void PairSums::PairWith(std::span<const Scores> partner, bool second_parents, double limit,
                        std::vector<ParentLikelihood>& likelihoods) {
  double log_largest = bounds_.LogLargestOfOne() + log_scale_ / 2;
  class_factors_.resize(class_scores_.size());
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    const Scores with = partner[typed_[i]];
    log_largest += LogLength(with);
    for (std::size_t at = first_class_[i]; at < EndOfClasses(i); ++at) {
      class_factors_[at] = Factor(class_scores_[at], with);
    }
  }
  const double most =
      limit == 0 ? kNoLimit : kCostsPerNat * (log_largest - std::log(limit)) + kLimitMargin;
  for (const CandidateGroup& group : groups_) {
    const SlotRange range = second_parents ? group.second : group.first;
    for (std::uint32_t slot = range.begin; slot < range.end; ++slot) {
      if (costs_[slot] <= most) {
        likelihoods.push_back({Slot{slot}, MultiplyFactors(Slot{slot})});
      }
    }
  }
}

double PairSums::MultiplyFactors(Slot parent) const {
  const std::uint16_t* const classes = bounds_.ClassesOf(parent);
  double product = 1;
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    product *= class_factors_[first_class_[i] + classes[typed_[i]]];
  }
  return product;
}

double PairSums::LikelihoodWith(std::span<const Scores> partner, Slot parent) const {
  const std::uint16_t* const classes = bounds_.ClassesOf(parent);
  double product = 1;
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    product *= Factor(class_scores_[first_class_[i] + classes[typed_[i]]], partner[typed_[i]]);
  }
  return product;
}

}  // namespace kaldo

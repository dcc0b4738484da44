// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ranked_parents.h"

#include <algorithm>

namespace kaldo {

namespace {

// Parents whose scores are looked up together, so that they stay in the nearest cache.
constexpr std::size_t kParentsAtOnce = 64;

}  // namespace

std::int32_t ClassScores::SmallestCost(SlotRange slots) const {
  return *std::min_element(costs.begin() + slots.begin, costs.begin() + slots.end);
}

void RankedParents::Rank(SlotRange slots, const ClassScores& scores, std::int32_t most,
                         const OffspringBounds& bounds) {
  order_.clear();
  for (std::uint32_t slot = slots.begin; slot < slots.end; ++slot) {
    if (scores.costs[slot] <= most) {
      order_.push_back(std::uint64_t{scores.costs[slot]} << 32U | slot);
    }
  }
  std::sort(order_.begin(), order_.end());
  slots_.clear();
  costs_.clear();
  for (const std::uint64_t one : order_) {
    slots_.emplace_back(static_cast<std::uint32_t>(one));
    costs_.push_back(static_cast<std::uint16_t>(one >> 32U));
  }
  sums_.assign(Count(), 0);
  LookUpScores(scores, bounds);
}

void RankedParents::LookUpScores(const ClassScores& scores, const OffspringBounds& bounds) {
  const auto typed = bounds.TypedLoci();
  const std::size_t count = Count();
  loci_ = typed.size();
  scores_.resize(2 * count * loci_);
  for (std::size_t begin = 0; begin < count; begin += kParentsAtOnce) {
    const std::size_t end = std::min(begin + kParentsAtOnce, count);
    double* r = scores_.data();
    for (std::size_t i = 0; i < loci_; ++i) {
      double* const j = r + count;
      const LocusBounds::Scores* const of_classes = scores.scores.data() + scores.first[i];
      for (std::size_t parent = begin; parent < end; ++parent) {
        const auto of_parent = of_classes[bounds.ClassesOf(slots_[parent])[typed[i]]];
        r[parent] = of_parent.r;
        j[parent] = of_parent.j;
      }
      r += 2 * count;
    }
  }
}

void RankedParents::Multiply(std::size_t i, const RankedParents& partners, std::size_t begin,
                             std::span<double> likelihoods) const {
  const double* own = scores_.data() + i;
  const double* others = partners.scores_.data() + begin;
  for (std::size_t locus = 0; locus < loci_; ++locus) {
    const double r1 = own[0];
    const double j1 = own[Count()];
    const double* const r2 = others;
    const double* const j2 = others + partners.Count();
    if (locus == 0) {
      for (std::size_t n = 0; n < likelihoods.size(); ++n) {
        likelihoods[n] = r1 * j2[n] + j1 * r2[n];
      }
    } else {
      for (std::size_t n = 0; n < likelihoods.size(); ++n) {
        likelihoods[n] *= r1 * j2[n] + j1 * r2[n];
      }
    }
    own += 2 * Count();
    others += 2 * partners.Count();
  }
}

}  // namespace kaldo

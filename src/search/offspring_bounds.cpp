// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/offspring_bounds.h"

#include <algorithm>

#include "search/cost_kernels.h"

namespace kaldo {

void OffspringBounds::Prepare(const SearchStudy& study) {
  bounds_.Prepare(study);
  clash_costs_ = ClashCosts(bounds_.SideRatio());
}

void OffspringBounds::Collect(Slot offspring, std::span<const std::uint32_t> typed,
                              std::span<const std::uint64_t> possible) {
  bounds_.MakeRoom();
  typed_ = typed;
  possible_ = possible;
  leaning_words_ = (typed_.size() + kLociPerLeaningWord - 1) / kLociPerLeaningWord;
  log_largest_ = 0;
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    LocusBounds& bounds = bounds_.BoundsFor(typed_[i], offspring);
    bounds_at_[i] = &bounds;
    scores_at_[i] = bounds.scores.data();
    leanings_at_[i] = bounds.leaning_of_class.data();
    costs_at_[i] = bounds.cost_of_class.data();
    log_largest_ += bounds.log_largest;
  }
}

void OffspringBounds::WriteLeanings(Slot parent, std::uint64_t* words) const {
  const std::uint16_t* const classes = bounds_.ClassesOf(parent);
  for (std::size_t begin = 0; begin < typed_.size(); begin += kLociPerLeaningWord) {
    std::uint64_t word = 0;
    for (std::size_t i = std::min(begin + kLociPerLeaningWord, typed_.size()); i > begin; --i) {
      word = word << kLeaningBits | leanings_at_[i - 1][classes[typed_[i - 1]]];
    }
    *words = word;
    ++words;
  }
}

std::uint16_t OffspringBounds::Cost(Slot parent) const {
  const std::uint16_t* const classes = bounds_.ClassesOf(parent);
  std::uint32_t cost = 0;
  for (std::size_t i = 0; i < typed_.size() && bounds_.AreSound(); ++i) {
    cost += costs_at_[i][classes[typed_[i]]];
  }
  return static_cast<std::uint16_t>(cost);
}

void OffspringBounds::AddUpCosts(std::uint16_t impossible, std::span<std::uint16_t> costs,
                                 std::span<std::uint16_t> minima) {
  cost_rows_.clear();
  for (std::size_t i = 0; i < typed_.size() && bounds_.AreSound(); ++i) {
    LocusBounds& bounds = *bounds_at_[i];
    if (bounds.costs.empty()) {
      bounds.AddCostsOfParents(bounds_.Classes(typed_[i]));
    }
    cost_rows_.push_back(bounds.costs.data());
  }
  SumCosts(cost_rows_, possible_, impossible, costs.data(), minima.data());
}

double OffspringBounds::Likelihood(ParentPair pair) const {
  const std::uint16_t* const classes1 = bounds_.ClassesOf(pair.parent1);
  const std::uint16_t* const classes2 = bounds_.ClassesOf(pair.parent2);
  double product = 1;  // 1 times the first factor is that factor
  for (std::size_t i = 0; i < typed_.size(); ++i) {
    const LocusBounds::Scores& scores1 = scores_at_[i][classes1[typed_[i]]];
    const LocusBounds::Scores& scores2 = scores_at_[i][classes2[typed_[i]]];
    product *= scores1.r * scores2.j + scores1.j * scores2.r;
  }
  return product;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/listed_parents.h"

#include <algorithm>
#include <numeric>

namespace kaldo {

namespace {

// A list of its own is made when at most this share of the parents is left, in percent.
constexpr std::size_t kListPercent = 75;

// The costs of fewer than one in so many parents are looked up one by one. Those of more are added
// up for all parents, many at a time.
constexpr std::size_t kFewOneIn = 8;

}  // namespace

void ListedParents::Prepare(std::size_t parents) {
  const std::size_t blocks = (parents + kBlock - 1) / kBlock;
  all_slots_.resize(parents);
  std::iota(all_slots_.begin(), all_slots_.end(), Slot{0});
  some_slots_.resize(parents);
  all_costs_.resize(blocks * kBlock);
  some_costs_.resize(blocks * kBlock);
  block_minima_.resize(blocks);
  minima_of_blocks_.resize(blocks / kBlocksAtOnce + 1);
  leanings_known_.resize(blocks);
}

bool ListedParents::ListPossible(const PossibleParents& parents) {
  const auto possible = parents.Bits();
  const std::size_t most = all_slots_.size() * kListPercent / 100;
  Slot* const slots = some_slots_.data();
  std::size_t count = 0;
  for (std::uint32_t block = 0; block < possible.size(); ++block) {
    for (std::uint64_t rest = possible[block]; rest != 0; rest &= rest - 1) {
      slots[count] = Slot{block * kBlock + static_cast<std::uint32_t>(std::countr_zero(rest))};
      ++count;
    }
    if (count > most) {
      return false;
    }
  }
  slots_ = slots;
  count_ = static_cast<std::uint32_t>(count);
  return true;
}

void ListedParents::List(const PossibleParents& possible) {
  if (!possible.SomeImpossible() || !ListPossible(possible)) {
    slots_ = all_slots_.data();
    count_ = static_cast<std::uint32_t>(all_slots_.size());
  }
}

void ListedParents::AddUpCosts(OffspringBounds& offspring) {
  const std::size_t parents = all_slots_.size();
  blocks_ = static_cast<std::uint32_t>((count_ + kBlock - 1) / kBlock);
  if (leanings_.size() < count_ * offspring.LeaningWords()) {
    leanings_.resize(parents * offspring.LeaningWords());
  }
  std::fill_n(leanings_known_.begin(), blocks_, std::uint64_t{0});
  if (AllListed()) {
    offspring.AddUpCosts(kImpossible, all_costs_, block_minima_);
    costs_ = all_costs_.data();
  } else {
    AddUpCostsOfSome(offspring);
    costs_ = some_costs_.data();
  }
  for (std::uint32_t begin = 0, many = 0; begin < blocks_; begin += kBlocksAtOnce, ++many) {
    const std::uint32_t end = std::min(begin + kBlocksAtOnce, blocks_);
    minima_of_blocks_[many] =
        *std::min_element(block_minima_.begin() + begin, block_minima_.begin() + end);
  }
}

void ListedParents::AddUpCostsOfSome(OffspringBounds& offspring) {
  const bool one_by_one = count_ * kFewOneIn < all_slots_.size();
  if (!one_by_one) {
    offspring.AddUpCosts(kImpossible, all_costs_, block_minima_);
  }
  for (std::uint32_t place = 0; place < count_; ++place) {
    const Slot slot = slots_[place];
    some_costs_[place] = one_by_one ? offspring.Cost(slot) : all_costs_[slot.Value()];
  }
  std::fill(some_costs_.begin() + count_, some_costs_.begin() + std::ptrdiff_t{blocks_} * kBlock,
            kImpossible);
  for (std::uint32_t block = 0; block < blocks_; ++block) {
    const auto begin = some_costs_.begin() + std::ptrdiff_t{block} * kBlock;
    block_minima_[block] = *std::min_element(begin, begin + kBlock);
  }
}

PlaceRange ListedParents::PlacesOf(SlotRange slots) const {
  if (AllListed()) {
    return {Place{slots.begin}, Place{slots.end}};
  }
  const auto place_of = [this](std::uint32_t slot) {
    return Place{
        static_cast<std::uint32_t>(std::lower_bound(slots_, slots_ + count_, Slot{slot}) - slots_)};
  };
  return {place_of(slots.begin), place_of(slots.end)};
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "search/offspring_bounds.h"
#include "search/places.h"
#include "search/possible_parents.h"

namespace kaldo {

/// The parents among which the pairs of one offspring are searched, in slot order, with their
/// costs: all parents, or where many can have given nothing at some locus, only the others.
///
/// Places run in blocks of kBlock, the last one filled up with parents of kImpossible costs.
class ListedParents {
 public:
  /// The cost of a parent that cannot have given anything at some locus: above every limit.
  static constexpr std::uint16_t kImpossible = 0xffff;

  /// Blocks whose smallest cost is kept together, so that a row passes over most parents in a few
  /// steps.
  static constexpr std::uint32_t kBlocksAtOnce = 16;

  /// For a table with so many collected parents, at the slots 0 to `parents` - 1.
  void Prepare(std::size_t parents);

  /// Lists the parents for an offspring.
  void List(const PossibleParents& possible);

  std::uint32_t Count() const { return count_; }
  Slot SlotAt(Place place) const { return slots_[place.Value()]; }
  ParentPair PairAt(Place parent1, Place parent2) const {
    return {SlotAt(parent1), SlotAt(parent2)};
  }

  /// The listed parents of a group.
  ListedGroup PlacesOf(const CandidateGroup& group) const {
    return {PlacesOf(group.first), PlacesOf(group.second)};
  }

  /// Adds up the costs of the listed parents. All that follows stands for the same offspring.
  void AddUpCosts(OffspringBounds& offspring);

  std::uint16_t CostAt(Place place) const { return costs_[place.Value()]; }
  const std::uint16_t* CostsOfBlock(std::uint32_t block) const {
    return costs_ + std::size_t{block} * kBlock;
  }

  /// The smallest cost in a block, and in kBlocksAtOnce blocks from `block` on, a multiple of it.
  std::uint16_t BlockMinimum(std::uint32_t block) const { return block_minima_[block]; }
  std::uint16_t MinimumOfBlocksFrom(std::uint32_t block) const {
    return minima_of_blocks_[block / kBlocksAtOnce];
  }

  /// The leanings of one parent, worked out when they are first wanted.
  const std::uint64_t* LeaningsAt(const OffspringBounds& offspring, Place place) {
    std::uint64_t* const leanings = leanings_.data() + place.Value() * offspring.LeaningWords();
    std::uint64_t& known = leanings_known_[BlockOf(place)];
    const std::uint64_t bit = std::uint64_t{1} << place.Value() % kBlock;
    if ((known & bit) == 0) {
      known |= bit;
      offspring.WriteLeanings(SlotAt(place), leanings);
    }
    return leanings;
  }

 private:
  bool ListPossible(const PossibleParents& parents);
  void AddUpCostsOfSome(OffspringBounds& offspring);
  bool AllListed() const { return slots_ == all_slots_.data(); }
  PlaceRange PlacesOf(SlotRange slots) const;

  std::vector<Slot> all_slots_;
  std::vector<Slot> some_slots_;
  const Slot* slots_ = nullptr;  ///< by place; one of the two above
  std::uint32_t count_ = 0;
  std::uint32_t blocks_ = 0;
  std::vector<std::uint16_t> all_costs_;   ///< by slot
  std::vector<std::uint16_t> some_costs_;  ///< by place
  const std::uint16_t* costs_ = nullptr;   ///< one of the two above
  std::vector<std::uint16_t> block_minima_;
  std::vector<std::uint16_t> minima_of_blocks_;
  std::vector<std::uint64_t> leanings_;        ///< by place, the words of one parent side by side
  std::vector<std::uint64_t> leanings_known_;  ///< bit by place
};

}  // namespace kaldo

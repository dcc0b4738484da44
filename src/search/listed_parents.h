// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "method/candidate_groups.h"
#include "search/cost_kernels.h"
#include "search/offspring_bounds.h"

namespace kaldo {

/// The parents among which the pairs of one offspring are searched, in slot order, with their
/// costs: all parents, or where many can have given nothing at some locus, only the others.
///
/// A place is a position in this list. Places run in blocks of kBlock, the last one filled up with
/// parents of kImpossible costs.
class ListedParents {
 public:
  /// The cost of a parent that cannot have given anything at some locus: above every limit.
  static constexpr std::uint16_t kImpossible = 0xffff;

  /// Blocks whose smallest cost is kept together, so that a row passes over most parents in a few
  /// steps.
  static constexpr std::uint32_t kBlocksAtOnce = 16;

  void Prepare(std::size_t parents);

  /// Lists the parents for an offspring.
  void List(const PossibleParents& possible);

  std::uint32_t Count() const { return count_; }
  std::uint32_t SlotAt(std::uint32_t place) const { return slots_[place]; }

  /// The places of the listed parents in a range of slots.
  SlotRange PlacesOf(SlotRange slots) const;

  /// Adds up the costs of the listed parents. All that follows stands for the same offspring.
  void AddUpCosts(OffspringBounds& offspring);

  /// The costs by place.
  const std::uint16_t* Costs() const { return costs_; }
  std::uint16_t BlockMinimum(std::uint32_t block) const { return block_minima_[block]; }
  std::uint16_t MinimumOfBlocks(std::uint32_t many) const { return minima_of_blocks_[many]; }

  /// The marks of one parent, worked out when they are first wanted.
  const std::uint64_t* MarksAt(const OffspringBounds& offspring, std::uint32_t place) {
    std::uint64_t* const marks = marks_.data() + place * offspring.MarkWords();
    std::uint64_t& known = marks_known_[place / kBlock];
    const std::uint64_t bit = std::uint64_t{1} << place % kBlock;
    if ((known & bit) == 0) {
      known |= bit;
      offspring.MarksOfParent(slots_[place], marks);
    }
    return marks;
  }

 private:
  bool ListPossible(const PossibleParents& parents);
  void AddUpCostsOfSome(OffspringBounds& offspring);
  bool AllListed() const { return slots_ == all_slots_.data(); }

  std::vector<std::uint32_t> all_slots_;
  std::vector<std::uint32_t> some_slots_;
  const std::uint32_t* slots_ = nullptr;  ///< one of the two above
  std::uint32_t count_ = 0;
  std::uint32_t blocks_ = 0;
  std::vector<std::uint16_t> all_costs_;   ///< by slot
  std::vector<std::uint16_t> some_costs_;  ///< by place
  const std::uint16_t* costs_ = nullptr;   ///< one of the two above
  std::vector<std::uint16_t> block_minima_;
  std::vector<std::uint16_t> minima_of_blocks_;
  std::vector<std::uint64_t> marks_;        ///< by place, the words of one parent side by side
  std::vector<std::uint64_t> marks_known_;  ///< bit by place
};

}  // namespace kaldo

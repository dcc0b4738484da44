// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "base/strong_number.h"
#include "method/candidate_groups.h"
#include "search/cost_kernels.h"

namespace kaldo {

/// The place of a parent in ListedParents, counted from 0. A list leaves parents out, so that a
/// place is no slot of the table: ListedParents::SlotAt leads from one to the other.
using Place = StrongNumber<struct PlaceTag, std::uint32_t>;

/// The places from `begin` up to, not including, `end`.
struct PlaceRange {
  Place begin;
  Place end;

  constexpr std::size_t Size() const { return end.Value() - begin.Value(); }
  constexpr bool IsEmpty() const { return begin >= end; }
  constexpr Place Last() const { return Place{end.Value() - 1}; }
};

/// The listed parents of a group.
using ListedGroup = ParentGroup<PlaceRange>;

constexpr std::uint32_t BlockOf(Place place) { return place.Value() / kBlock; }

/// The first place of a block.
constexpr Place BeginOfBlock(std::uint32_t block) { return Place{block * kBlock}; }

/// The place of the lowest bit of a block's mask.
constexpr Place LowestPlace(std::uint32_t block, std::uint64_t mask) {
  return Place{block * kBlock + static_cast<std::uint32_t>(std::countr_zero(mask))};
}

/// The bits of those places of a block that lie in the range.
constexpr std::uint64_t MaskOfRange(std::uint32_t block, PlaceRange range) {
  const std::uint32_t begin = block * kBlock;
  const std::uint32_t first = range.begin.Value() > begin ? range.begin.Value() - begin : 0;
  const std::uint32_t last =
      range.end.Value() - begin < kBlock ? range.end.Value() - begin : kBlock;
  const std::uint64_t below_last =
      last == kBlock ? ~std::uint64_t{0} : (std::uint64_t{1} << last) - 1;
  return first >= last ? 0 : below_last & (~std::uint64_t{0} << first);
}

}  // namespace kaldo

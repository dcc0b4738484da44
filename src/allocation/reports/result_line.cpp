// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/result_line.h"

#include <utility>

#include <fmt/format.h>

namespace kaldo {

namespace {

/// One side of an offspring's line as text.
struct SideTexts {
  std::string name = "UC";
  std::string rank = "--";
  std::string errors = "--";
};

SideTexts TextsOf(const AllocationInput& input, const AllocatedSide& side) {
  if (!side.parent) {
    return {};
  }
  return {std::string(input.table.Name(*side.parent).Text()),
          std::to_string(RankInFile(input, *side.parent)), std::to_string(side.errors)};
}

}  // namespace

AllocatedSides SidesOf(Flow flow, const AllocationOutcome& outcome) {
  AllocatedSides sides;
  if (!outcome.HasPair()) {
    return sides;
  }
  const ParentPair pair = outcome.pairs.front();
  if (!outcome.par1_uncollected) {
    sides.first = {pair.parent1, outcome.errors_par1};
  }
  if (!outcome.par2_uncollected) {
    sides.second = {pair.parent2, outcome.errors_par2};
  }
  if (flow == Flow::kNonSexed && outcome.par1_uncollected) {
    std::swap(sides.first, sides.second);
  }
  return sides;
}

std::uint32_t RankInFile(const AllocationInput& input, Slot parent) {
  const bool is_female = parent.Value() >= input.second_parents.begin;
  const std::uint32_t first = is_female ? input.second_parents.begin : 0;
  return parent.Value() - first + 1;
}

std::string ResultLine(Flow flow, const AllocationInput& input, const AllocationResult& result,
                       std::size_t offspring) {
  const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(offspring)};
  const AllocatedSides sides = SidesOf(flow, result.outcomes[offspring]);
  const SideTexts first = TextsOf(input, sides.first);
  const SideTexts second = TextsOf(input, sides.second);
  return fmt::format("{}\t{}\t{}\t[{},{}]\t[{},{}]\n", input.table.Name(slot).Text(), first.name,
                     second.name, first.rank, second.rank, first.errors, second.errors);
}

}  // namespace kaldo

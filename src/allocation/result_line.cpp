// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/result_line.h"

#include <utility>

#include <fmt/format.h>

namespace kaldo {

namespace {

/// One side of an offspring's line.
struct Side {
  std::string name = "UC";
  std::string rank = "--";
  std::string errors = "--";
};

Side AcceptedSide(const AllocationInput& input, Slot parent, int errors) {
  const bool is_female = parent.Value() >= input.second_parents.begin;
  const std::uint32_t first = is_female ? input.second_parents.begin : 0;
  return {std::string(input.table.Name(parent).Text()), std::to_string(parent.Value() - first + 1),
          std::to_string(errors)};
}

}  // namespace

std::string ResultLine(Flow flow, const AllocationInput& input, const AllocationResult& result,
                       std::size_t offspring) {
  const AllocationOutcome& outcome = result.outcomes[offspring];
  const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(offspring)};
  Side first;
  Side second;
  if (outcome.HasPair() && !outcome.par1_uncollected) {
    first = AcceptedSide(input, outcome.pairs.front().parent1, outcome.errors_par1);
  }
  if (outcome.HasPair() && !outcome.par2_uncollected) {
    second = AcceptedSide(input, outcome.pairs.front().parent2, outcome.errors_par2);
  }
  if (flow == Flow::kNonSexed && outcome.par1_uncollected) {
    std::swap(first, second);
  }
  return fmt::format("{}\t{}\t{}\t[{},{}]\t[{},{}]\n", input.table.Name(slot).Text(), first.name,
                     second.name, first.rank, second.rank, first.errors, second.errors);
}

}  // namespace kaldo

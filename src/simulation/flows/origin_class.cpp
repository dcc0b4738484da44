// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/flows/origin_class.h"

#include <algorithm>
#include <cassert>

namespace kaldo {

namespace {

/// All codes of a flow in the order of the reports.
std::vector<SideCode> CodesInOrder(Flow flow) {
  return flow == Flow::kSexed ? std::vector<SideCode>{3, 1, 2, 0} : std::vector<SideCode>{2, 1, 0};
}

/// A side is correct only where it is allocated and its true parent collected.
bool IsPossible(Flow flow, SideCode correct, SideCode allocated, SideCode collected) {
  return flow == Flow::kSexed ? (correct & ~(allocated & collected)) == 0
                              : correct <= std::min(allocated, collected);
}

}  // namespace

std::size_t OriginClass::RowOf(SideCode allocated, SideCode correct) const {
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const OriginRow& row) {
    return row.allocated == allocated && row.correct == correct;
  });
  assert(found != rows.end() && "every possible decision has a row");
  return static_cast<std::size_t>(found - rows.begin());
}

OriginClass MakeOriginClass(Flow flow, std::size_t first_group, bool first_uncollected,
                            std::size_t second_group, bool second_uncollected) {
  OriginClass origin{.first_group = first_group,
                     .second_group = second_group,
                     .first_uncollected = first_uncollected,
                     .second_uncollected = second_uncollected,
                     .rows = {}};
  const SideCode collected = CodeOfSides(flow, !first_uncollected, !second_uncollected);
  for (const SideCode allocated : CodesInOrder(flow)) {
    const int unallocated = 2 - NumberOfSides(flow, allocated);
    for (const SideCode correct : CodesInOrder(flow)) {
      if (IsPossible(flow, correct, allocated, collected)) {
        origin.rows.push_back({.allocated = allocated,
                               .correct = correct,
                               .weight = NumberOfSides(flow, correct) +
                                         std::min(unallocated, origin.UncollectedParents())});
      }
    }
  }
  return origin;
}

}  // namespace kaldo

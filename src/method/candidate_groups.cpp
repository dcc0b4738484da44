// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/candidate_groups.h"

#include <cassert>

#include "genotypes/separator.h"

namespace kaldo {

std::vector<SlotRange> CutAtSeparators(const GenotypeTable& table, SlotRange parents) {
  std::vector<SlotRange> groups;
  std::uint32_t begin = parents.begin;
  for (std::uint32_t slot = parents.begin; slot < parents.end; ++slot) {
    if (IsSeparatorName(table.Name(Slot{slot}).Text())) {
      groups.push_back({begin, slot});
      begin = slot + 1;
    }
  }
  groups.push_back({begin, parents.end});
  return groups;
}

std::vector<CandidateGroup> FormGroups(Flow flow, const GenotypeTable& table, SlotRange first,
                                       SlotRange second) {
  const auto first_groups = CutAtSeparators(table, first);
  const auto second_groups = flow == Flow::kSexed ? CutAtSeparators(table, second) : first_groups;
  assert(first_groups.size() == second_groups.size() && "males and females have the same groups");
  std::vector<CandidateGroup> groups;
  for (std::size_t k = 0; k < first_groups.size(); ++k) {
    groups.push_back({first_groups[k], second_groups[k]});
  }
  return groups;
}

}  // namespace kaldo

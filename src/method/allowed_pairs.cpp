// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/allowed_pairs.h"

#include <algorithm>

namespace kaldo {

namespace {

/// The pairs of a group with a known parent, in the order in which the scan meets them: the known
/// one comes second behind those before it, then first.
std::array<CandidateGroup, 2> AroundKnown(Flow flow, const CandidateGroup& group, Slot known) {
  const SlotRange alone{known.Value(), known.Value() + 1};
  if (flow == Flow::kSexed) {
    return {{{group.first, alone}, {}}};
  }
  return {{{{group.first.begin, alone.begin}, alone}, {alone, {alone.end, group.first.end}}}};
}

std::span<const CandidateGroup> GroupsFor(std::span<const CandidateGroup> groups,
                                          const AllowedPairs& allowed) {
  return allowed.group ? groups.subspan(*allowed.group, 1) : groups;
}

/// The group of a known parent; one without anybody where it stands in none of these.
CandidateGroup GroupOf(std::span<const CandidateGroup> groups, Slot known) {
  const auto group = std::find_if(groups.begin(), groups.end(),
                                  [known](const auto& each) { return each.second.Holds(known); });
  return group == groups.end() ? CandidateGroup{} : *group;
}

}  // namespace

bool AllowedPairs::IsCandidate(Slot parent) const {
  return !candidates || std::binary_search(candidates->begin(), candidates->end(), parent);
}

std::size_t AllowedPairs::CountIn(SlotRange parents) const {
  if (!candidates) {
    return parents.Size();
  }
  const auto before = [this](std::uint32_t slot) {
    return std::lower_bound(candidates->begin(), candidates->end(), Slot{slot});
  };
  return static_cast<std::size_t>(before(parents.end) - before(parents.begin));
}

OffspringGroups::OffspringGroups(Flow flow, std::span<const CandidateGroup> groups,
                                 const AllowedPairs& allowed)
    : groups_(GroupsFor(groups, allowed)),
      pairing_(allowed.known_parent ? Flow::kSexed : flow),
      known_parent_(allowed.known_parent.has_value()) {
  if (known_parent_) {
    const Slot known = *allowed.known_parent;
    const CandidateGroup group = GroupOf(groups_, known);
    if (group.second.Size() > 0) {
      around_known_ = AroundKnown(flow, group, known);
    }
  }
}

GroupsToSum::GroupsToSum(Flow flow, std::span<const CandidateGroup> groups,
                         const AllowedPairs& allowed)
    : flow_(flow),
      groups_(GroupsFor(groups, allowed)),
      known_parent_(allowed.known_parent.has_value()) {
  if (known_parent_) {
    const Slot known = *allowed.known_parent;
    const CandidateGroup group = GroupOf(groups_, known);
    if (group.second.Size() > 0 && allowed.IsCandidate(known)) {
      const SlotRange alone{known.Value(), known.Value() + 1};
      around_known_ = flow == Flow::kSexed ? CandidateGroup{group.first, alone}
                                           : CandidateGroup{alone, group.first};
    }
  }
}

bool HasPair(Flow flow, std::span<const CandidateGroup> groups, const AllowedPairs& allowed) {
  const OffspringGroups own(flow, groups, allowed);
  return std::any_of(own.Groups().begin(), own.Groups().end(), [&](const CandidateGroup& group) {
    const std::size_t first = allowed.CountIn(group.first);
    return own.Pairing() == Flow::kSexed ? first > 0 && allowed.CountIn(group.second) > 0
                                         : first > 1;
  });
}

}  // namespace kaldo

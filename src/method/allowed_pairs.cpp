// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/allowed_pairs.h"

#include <algorithm>

namespace kaldo {

namespace {

bool Holds(SlotRange range, Slot slot) {
  return range.begin <= slot.Value() && slot.Value() < range.end;
}

/// The pairs of a group with a known parent, in the order in which the scan meets them: the known
/// one comes second behind those before it, then first.
std::array<CandidateGroup, 2> AroundKnown(Flow flow, const CandidateGroup& group, Slot known) {
  const SlotRange alone{known.Value(), known.Value() + 1};
  if (flow == Flow::kSexed) {
    return {{{group.first, alone}, {}}};
  }
  return {{{{group.first.begin, alone.begin}, alone}, {alone, {alone.end, group.first.end}}}};
}

bool HasPair(Flow pairing, const CandidateGroup& group, const std::vector<Slot>& candidates) {
  const auto before = [&candidates](std::uint32_t slot) {
    return std::lower_bound(candidates.begin(), candidates.end(), Slot{slot}) - candidates.begin();
  };
  const auto count = [&before](SlotRange range) { return before(range.end) - before(range.begin); };
  return pairing == Flow::kSexed ? count(group.first) > 0 && count(group.second) > 0
                                 : count(group.first) > 1;
}

}  // namespace

bool AllowedPairs::IsCandidate(Slot parent) const {
  return !candidates || std::binary_search(candidates->begin(), candidates->end(), parent);
}

OffspringGroups::OffspringGroups(Flow flow, std::span<const CandidateGroup> groups,
                                 const AllowedPairs& allowed)
    : groups_(allowed.group ? groups.subspan(*allowed.group, 1) : groups),
      pairing_(allowed.known_parent ? Flow::kSexed : flow),
      known_parent_(allowed.known_parent.has_value()) {
  if (known_parent_) {
    const Slot known = *allowed.known_parent;
    const auto group = std::find_if(groups_.begin(), groups_.end(), [known](const auto& each) {
      return Holds(each.second, known);
    });
    if (group != groups_.end()) {
      around_known_ = AroundKnown(flow, *group, known);
    }
  }
}

bool HasPair(Flow flow, std::span<const CandidateGroup> groups, const AllowedPairs& allowed) {
  const OffspringGroups own(flow, groups, allowed);
  return std::any_of(own.Groups().begin(), own.Groups().end(), [&](const CandidateGroup& group) {
    if (allowed.candidates) {
      return HasPair(own.Pairing(), group, *allowed.candidates);
    }
    return own.Pairing() == Flow::kSexed ? group.first.Size() > 0 && group.second.Size() > 0
                                         : group.first.Size() > 1;
  });
}

}  // namespace kaldo

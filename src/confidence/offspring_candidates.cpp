// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/offspring_candidates.h"

#include <algorithm>

namespace kaldo {

OffspringCandidates::OffspringCandidates(Flow flow, std::span<const CandidateGroup> groups,
                                         const AllowedPairs& allowed)
    : flow_(flow),
      allowed_(&allowed),
      groups_(flow, groups, allowed),
      ways_(CountWays(flow, groups, allowed)) {}

bool OffspringCandidates::MayBeAlone(Slot candidate) const {
  return !allowed_->known_parent || *allowed_->known_parent == candidate;
}

bool OffspringCandidates::MayStandFor(std::size_t side, Slot candidate, Slot other) const {
  if (allowed_->AreAll()) {
    return true;
  }
  const auto holds = [other](SlotRange range) {
    return range.begin <= other.Value() && other.Value() < range.end;
  };
  const auto groups = Groups();
  const bool is_listed = std::any_of(groups.begin(), groups.end(), [&](const auto& group) {
    return holds(flow_ == Flow::kSexed && side == 0 ? group.first : group.second);
  });
  return is_listed && allowed_->IsCandidate(other) && MayBeAlone(candidate) == MayBeAlone(other);
}

std::optional<ParentPair> OffspringCandidates::FirstPair(const CandidateGroup& group) const {
  for (Slot one{group.first.begin}; one < Slot{group.first.end}; ++one) {
    if (!allowed_->IsCandidate(one)) {
      continue;
    }
    for (Slot other{group.second.begin}; other < Slot{group.second.end}; ++other) {
      if (one != other && allowed_->IsCandidate(other)) {
        return flow_ == Flow::kSexed || one < other ? ParentPair{one, other}
                                                    : ParentPair{other, one};
      }
    }
  }
  return std::nullopt;
}

}  // namespace kaldo

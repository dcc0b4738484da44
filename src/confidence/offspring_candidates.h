// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "confidence/explanations.h"
#include "method/kept_pairs.h"

namespace kaldo {

/// Who may be a parent of one offspring, and in how many ways: all candidates of the run, but where
/// more is known of the offspring.
class OffspringCandidates {
 public:
  /// Refers to all that it is made of.
  OffspringCandidates(Flow flow, std::span<const CandidateGroup> groups,
                      const AllowedPairs& allowed);

  const WaysOfExplanations& Ways() const { return ways_; }
  std::span<const CandidateGroup> Groups() const { return groups_.Groups(); }
  bool HasKnownParent() const { return allowed_->known_parent.has_value(); }

  /// Whether one collected parent can have been this one: not where another is known.
  bool MayBeAlone(Slot candidate) const;

  /// Whether a candidate of a side is exchanged for another one of the same genotypes without a
  /// change of any probability.
  bool MayStandFor(std::size_t side, Slot candidate, Slot other) const;

  /// The first pair of a group in the order of the scan.
  std::optional<ParentPair> FirstPair(const CandidateGroup& group) const;

  /// Calls `use` with side, slot and number of partners of every candidate of one of Groups(), in
  /// slot order on each side. Without sex all are on the first side, but for the partners of a
  /// known parent.
  template <typename Use>
  void ForEachPartnered(const CandidateGroup& group, Use use) const {
    for (std::size_t side = 0; side < (groups_.SidesAreOne() ? 1U : 2U); ++side) {
      const SlotRange own = side == 0 ? group.first : group.second;
      const SlotRange others = side == 0 ? group.second : group.first;
      const auto partners = static_cast<double>(allowed_->CountIn(others));
      for (std::uint32_t slot = own.begin; slot < own.end; ++slot) {
        const bool is_own_partner = others.begin <= slot && slot < others.end;
        const bool is_known = side == 1 && is_own_partner;  // told on the first side
        if (allowed_->IsCandidate(Slot{slot}) && !is_known) {
          use(side, Slot{slot}, is_own_partner ? partners - 1 : partners);
        }
      }
    }
  }

 private:
  Flow flow_;
  const AllowedPairs* allowed_;
  GroupsToSum groups_;
  WaysOfExplanations ways_;
};

}  // namespace kaldo

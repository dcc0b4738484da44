// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "method/candidate_groups.h"

namespace kaldo {

/// What is known of the parents of one offspring before its genotype is looked at: an observed
/// mother, the adults of its pond, those that were alive. Only pairs that agree with all of it are
/// candidates; where nothing is said, every pair of every group is one.
struct AllowedPairs {
  std::optional<std::uint32_t> group;           ///< the group of both parents, counted from 0
  std::optional<std::vector<Slot>> candidates;  ///< both parents are among them; ascending
  std::optional<Slot> known_parent;             ///< one of the two; sexed: the mother

  bool AreAll() const { return !group && !candidates && !known_parent; }

  /// Whether `parent` is among the candidates.
  bool IsCandidate(Slot parent) const;

  /// How many of these parents are.
  std::size_t CountIn(SlotRange parents) const;

  friend bool operator==(const AllowedPairs&, const AllowedPairs&) = default;
};

/// The groups in which the pairs of one offspring are searched, in the order of the scan. A known
/// parent stands alone on its side, with all others of its group on the other side.
class OffspringGroups {
 public:
  /// Of the groups of a run, which must outlive this.
  OffspringGroups(Flow flow, std::span<const CandidateGroup> groups, const AllowedPairs& allowed);

  std::span<const CandidateGroup> Groups() const {
    return known_parent_ ? std::span(around_known_) : groups_;
  }

  /// For PartnersOf(). Around a known parent even the groups of a non-sexed run have two sides.
  Flow Pairing() const { return pairing_; }

 private:
  std::span<const CandidateGroup> groups_;
  Flow pairing_;
  bool known_parent_;
  std::array<CandidateGroup, 2> around_known_{};
};

/// The same for sums over pairs, whose order does not matter. Without sex the parents of a group
/// are on both sides, or a known one on the first and its whole group on the second; nobody is its
/// own partner.
class GroupsToSum {
 public:
  GroupsToSum(Flow flow, std::span<const CandidateGroup> groups, const AllowedPairs& allowed);

  std::span<const CandidateGroup> Groups() const {
    return known_parent_ ? std::span(&around_known_, 1) : groups_;
  }

  /// Whether both sides hold the same parents, of which every pair comes once.
  bool SidesAreOne() const { return flow_ == Flow::kNonSexed && !known_parent_; }

 private:
  Flow flow_;
  std::span<const CandidateGroup> groups_;
  bool known_parent_;
  CandidateGroup around_known_;
};

/// Whether some pair is allowed.
bool HasPair(Flow flow, std::span<const CandidateGroup> groups, const AllowedPairs& allowed);

}  // namespace kaldo

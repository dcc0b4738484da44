// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "method/pair_scan.h"
#include "search/direct_likelihood.h"
#include "search/listed_parents.h"
#include "search/offspring_bounds.h"
#include "search/possible_parents.h"

namespace kaldo {

/// Finds the most likely pairs of collected parents of one offspring after the other: exactly what
/// ScanPairs finds, bit for bit, without multiplying out every pair.
///
/// What is kept depends on the order of the scan (ties, the mark "more than five", rows left
/// early), so pairs are met in that order here too. A pair is passed over only when a bound proves
/// that its likelihood lies below the best one at that moment of the scan, or is 0; the few that
/// remain are multiplied out from the same expressions. Bounds carry a margin, and where they
/// cannot be trusted (negative probabilities, likelihoods near the smallest number) every pair is
/// multiplied out. Rows in which bounds rule out too little are scanned plainly.
///
/// One object serves one thread. Memory grows with the genotypes met: at most about 160 MB.
class PairSearcher {
 public:
  /// How often some ways were taken that only matter to the time of a search.
  struct Work {
    std::uint64_t without_two_parents = 0;  ///< fewer than two parents can have given something
    std::uint64_t among_three = 0;          ///< so few possible parents that all were multiplied
    std::uint64_t multiplied = 0;           ///< pairs that were multiplied out one by one
    std::uint64_t plain_rows = 0;           ///< rows scanned plainly
  };

  /// `bytes` is the memory for the bounds of genotypes.
  explicit PairSearcher(std::size_t bytes = GenotypeBounds::kBytes) : bounds_(bytes) {}

  /// Prepares for the searches of a run. The study, as it says, and what `candidates` refers to
  /// must stay as they are until the last search. May be called again, for other loci or for new
  /// parents in the same table.
  void Prepare(const SearchStudy& study, const Candidates& candidates);

  /// Fills the search part of the outcome. Throws RunStopped when the observer asks.
  AllocationOutcome Search(Slot offspring, const RunObserver& observer);

  /// The same among the allowed pairs alone.
  AllocationOutcome Search(Slot offspring, const AllowedPairs& allowed,
                           const RunObserver& observer);

  const Work& WorkDone() const { return work_; }

 private:
  void ScanGroup(const CandidateGroup& slots, KeptPairs& kept, const RunObserver& observer);
  void ScanBlock(std::uint32_t block, const ListedGroup& group, KeptPairs& kept);
  void ScanRow(Place first_parent, PlaceRange partners, KeptPairs& kept);
  void ScanRowByBounds(Place first_parent, PlaceRange partners, KeptPairs& kept);
  SlotRange SlotsAcross(PlaceRange partners) const;
  bool IsCrowded(Place first_parent, PlaceRange partners) const;
  void ScanRowPlainly(Place first_parent, PlaceRange partners, KeptPairs& kept);
  void ScanCandidatesPlainly(Place first_parent, PlaceRange partners, KeptPairs& kept);
  void MultiplyAll(const CandidateGroup& slots, KeptPairs& kept);
  void ScoreParents();
  bool LeaningsAllow(Place first_parent, Place partner, std::int32_t cost);
  AfterPair Multiply(Place first_parent, Place partner, KeptPairs& kept);
  void Tighten(double best);
  void FillPartnerMinima(PlaceRange partners);

  std::optional<SearchStudy> study_;
  Candidates candidates_;
  PossibleParents possible_;
  DirectLikelihood direct_;
  OffspringBounds bounds_;
  ListedParents listed_;
  Work work_;

  // Of the current offspring:
  Slot offspring_;
  Flow pairing_ = Flow::kNonSexed;  ///< see OffspringGroups
  bool has_candidates_ = false;     ///< of its own
  std::int32_t limit_ = 0;          ///< costs of a pair above it: it cannot matter
  std::array<std::uint64_t, kMaxLeaningWords>
      wanted_leanings_{};  ///< of the first parent of the row
  bool wanted_are_known_ = false;
  std::vector<std::uint16_t> partner_minima_;  ///< of all partners from a block on

  // For rows that are scanned plainly:
  std::uint32_t plain_rows_left_ = 0;
  std::uint32_t plain_rows_next_ = 0;
  bool scores_are_known_ = false;
  TransmissionScores scores_{0, 0};
};

}  // namespace kaldo

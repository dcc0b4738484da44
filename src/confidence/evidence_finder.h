// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "base/run_observer.h"
#include "confidence/evidence.h"
#include "confidence/identical_parents.h"
#include "confidence/offspring_candidates.h"
#include "confidence/scaled_stranger.h"
#include "search/pair_sums.h"

namespace kaldo {

/// Candidates of which a result has to tell, by side, however improbable they are.
using AskedCandidates = std::array<std::optional<Slot>, 2>;

/// What is wanted about one offspring.
struct EvidenceWish {
  /// What may be left out; none: what equal shares of the explanations allow.
  std::optional<EvidenceLimits> limits;
  AskedCandidates asked;
  bool list_most_likely = false;  ///< see Evidence::most_likely
};

/// What is the same for every offspring of a run. It refers to everything but the ways.
struct EvidenceStudy {
  SearchStudy search;  ///< with the matrices M' of this room
  Flow flow = Flow::kNonSexed;
  std::span<const CandidateGroup> groups;
  WaysOfExplanations ways;

  /// P(U) of a stranger, by locus of the names-of-loci file and allele; see StrangerScores.
  std::span<const std::vector<double>> strangers;

  /// By side; in the non-sexed flow only the first is looked at.
  std::span<const IdenticalParents> identical;

  /// What is known of each offspring; empty where nothing is known of any.
  std::span<const AllowedPairs> allowed = {};
  Slot first_offspring = {};

  const AllowedPairs& AllowedFor(Slot offspring) const {
    static const AllowedPairs all;
    return allowed.empty() ? all : allowed[offspring.Value() - first_offspring.Value()];
  }
};

/// Gathers the evidence of one offspring after the other; one object serves one thread. The study
/// must stay as it is until the last.
class EvidenceFinder {
 public:
  explicit EvidenceFinder(const EvidenceStudy& study);

  /// Throws RunStopped when the observer asks.
  Evidence Find(Slot offspring, const EvidenceWish& wish, const RunObserver& observer);

 private:
  void FindWithStranger(double limit, bool list, Evidence& evidence);
  void ListWithStranger(std::size_t side, Evidence& evidence);
  void FindPairs(double limit, bool list, Evidence& evidence, const RunObserver& observer);
  void FillUntyped(Evidence& evidence);
  void SetPartnersOfUntyped(const CandidateGroup& group, Evidence& evidence);
  CandidateEvidence& At(std::size_t side, Slot slot);
  void TakeShortlist(std::size_t side, Evidence& evidence);
  void Answer(const AskedCandidates& asked, bool is_typed, Evidence& evidence);
  std::size_t Sides() const { return study_.flow == Flow::kSexed ? 2 : 1; }

  /// A candidate of a side with what has been found for it.
  struct Found {
    CandidateEvidence evidence;
    bool is_listed = false;
  };

  EvidenceStudy study_;
  PairSums sums_;

  // Of the current offspring:
  std::optional<OffspringCandidates> own_;
  ScaledStranger stranger_;
  std::vector<ParentLikelihood> with_stranger_;
  std::array<std::vector<Found>, 2> found_;  ///< by side and slot
  std::array<std::vector<Slot>, 2> listed_;  ///< those with anything found
};

}  // namespace kaldo

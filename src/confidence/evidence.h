// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <tuple>
#include <vector>

#include "confidence/explanations.h"
#include "method/kept_pairs.h"

namespace kaldo {

// All likelihoods of an offspring stand in a unit of its own, a power of two between that of two
// strangers and the largest that its loci allow, so that they neither vanish nor overflow. Only
// their ratios mean something.

/// Likelihoods left out because they cannot matter; in the units of the offspring.
struct EvidenceLimits {
  double pairs = 0;       ///< of two candidates
  double candidates = 0;  ///< of a candidate with a stranger

  static auto Fields(auto& self) { return std::tie(self.pairs, self.candidates); }
};

/// What speaks for one candidate of a side, or for several that no genotype tells apart.
struct CandidateEvidence {
  double with_partners = 0;  ///< sum of L(i,j) over its partners
  double with_stranger = 0;  ///< L(i,U)

  static auto Fields(auto& self) { return std::tie(self.with_partners, self.with_stranger); }
};

/// A candidate that may be among the most probable ones, whatever the shares of the explanations.
struct ShortlistedCandidate {
  Slot slot;
  CandidateEvidence evidence;
  std::uint32_t alike = 1;      ///< candidates with its genotype, itself included
  CandidateEvidence all_alike;  ///< their sum

  static auto Fields(auto& self) {
    return std::tie(self.slot, self.evidence, self.alike, self.all_alike);
  }
};

/// The most likely pair under the matrices of this room.
struct BestPairEvidence {
  ParentPair pair;
  double likelihood = 0;
  double second = 0;           ///< of the second most likely pair; the same in a tie
  std::uint64_t pairs = 0;     ///< that are exactly so likely, itself included; 0: no pair
  double without_parent1 = 0;  ///< L(U, parent 2)
  double without_parent2 = 0;  ///< L(parent 1, U)

  static auto Fields(auto& self) {
    return std::tie(self.pair, self.likelihood, self.second, self.pairs, self.without_parent1,
                    self.without_parent2);
  }
};

/// A parent with its likelihood; none where there is no candidate.
struct BestCandidate {
  std::optional<Slot> slot;
  double likelihood = 0;

  static auto Fields(auto& self) { return std::tie(self.slot, self.likelihood); }
};

/// One way to explain an offspring: candidates by side, none for a stranger.
struct LikelyParents {
  std::array<std::optional<Slot>, 2> parents;
  double likelihood = 0;

  static auto Fields(auto& self) { return std::tie(self.parents, self.likelihood); }
};

/// So many of the most likely ways of an explanation are listed where that is asked for.
inline constexpr std::size_t kMostPairsListed = 500;
inline constexpr std::size_t kMostCandidatesListed = 100;

/// What the genotypes say about one offspring, before anything is known about how many parents
/// were collected.
struct Evidence {
  /// The part that has one size.
  struct Fixed {
    /// False where nothing is typed: then every likelihood is 1, and the offspring tells nothing
    /// about the shares.
    bool is_typed = false;

    /// E: the mean likelihood over the ways of each explanation.
    ///   E_both   = sum of L(i,j) over the pairs / their number
    ///   E_first  = sum of L(i,U) over the first candidates / their number, E_second alike
    ///   E_none   = L(U,U)
    /// with L as in ScanPairs (Meagher & Thompson 1986, doi:10.1016/0040-5809(86)90006-7).
    ByExplanation<double> mean;

    EvidenceLimits limits;  ///< with which the means were taken

    BestPairEvidence best_pair;
    std::array<BestCandidate, 2> best_with_stranger;  ///< by side

    /// For candidates that were asked for, by side.
    std::array<std::optional<CandidateEvidence>, 2> asked;

    static auto Fields(auto& self) {
      return std::tie(self.is_typed, self.mean, self.limits, self.best_pair,
                      self.best_with_stranger, self.asked);
    }
  } fixed;

  /// By side; in the non-sexed flow all stand on the first.
  std::array<std::vector<ShortlistedCandidate>, 2> shortlists;

  /// The most likely ways of each explanation but that of two strangers; empty where not asked
  /// for. By kAllExplanations.
  std::array<std::vector<LikelyParents>, 3> most_likely;

  static auto Fields(auto& self) { return std::tie(self.fixed, self.shortlists, self.most_likely); }
};

/// So many candidates of a side are told: the most probable ones of both sides of the non-sexed
/// flow, and the next.
inline constexpr std::size_t kCandidatesTold = 3;

/// Leaves those that fewer than three others surpass in both kinds of evidence, at equality those
/// before them in file order. Whatever the shares, the three most probable ones are among them.
void Shorten(std::vector<ShortlistedCandidate>& candidates);

}  // namespace kaldo

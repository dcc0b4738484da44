// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "allocation/locus_bounds.h"
#include "allocation/pair_scan.h"

namespace kaldo {

/// Finds the most likely pairs of collected parents of one offspring after the other: exactly what
/// ScanPairs finds, bit for bit, without multiplying out every pair.
///
/// What is kept depends on the order of the scan (ties, the mark "more than five", rows left
/// early), so pairs are met in that order here too. A pair is passed over only when a bound proves
/// that its likelihood lies below the best one at that moment of the scan; the few that remain are
/// multiplied out from the same expressions. Bounds carry a margin, and where they cannot be
/// trusted (negative probabilities, likelihoods near the smallest number) every pair is multiplied
/// out.
///
/// One object serves one thread. Memory grows with the genotypes met: at most about 160 MB.
class PairSearcher {
 public:
  /// Prepares for a run over `loci` of an indexed table; `matrices` has one per locus of the
  /// names-of-loci file. All of them must outlive the searches. May be called again for other loci
  /// or for new parents in the same table.
  void Prepare(const GenotypeTable& table, std::size_t parents, std::span<const LocusIndex> loci,
               std::span<const TransmissionMatrix> matrices, const Candidates& candidates);

  /// Fills the search part of the outcome. Throws RunStopped when the observer asks.
  AllocationOutcome Search(Slot offspring, const RunObserver& observer);

 private:
  /// One locus of the run.
  struct Locus {
    LocusIndex index;
    ParentClasses classes;
    std::vector<std::int32_t> bounds_of;  ///< place in bounds_ by (r, j), or kNoBounds
  };

  /// The scores of one parent at the loci of the current offspring, worked out when first needed.
  struct ParentScores {
    std::uint64_t hardly_j = 0;  ///< bit by locus: can hardly have given J
    std::uint64_t hardly_r = 0;
    std::uint32_t epoch = 0;  ///< the offspring they belong to
    std::uint32_t place = 0;  ///< where they start in score_pool_
  };

  LocusBounds& BoundsOf(std::size_t k, const LocusGenotype& offspring);
  void CollectBounds(Slot offspring);
  void FindPossibleParents();
  void AddUpCosts();
  void AddUpCostsOfFew();
  void ScanGroup(const CandidateGroup& group, KeptPairs& kept, const RunObserver& observer);
  void ScanRow(std::uint32_t first_parent, SlotRange partners, KeptPairs& kept);
  void ScanFew(const CandidateGroup& group, KeptPairs& kept);
  AfterPair TryPair(std::uint32_t first_parent, std::uint32_t partner, KeptPairs& kept);
  const ParentScores& ScoresOf(std::uint32_t parent);
  double Likelihood(std::uint32_t one, std::uint32_t two) const;
  void Tighten(double best);
  void FillPartnerMinima(const CandidateGroup& group);

  const GenotypeTable* table_ = nullptr;
  std::span<const TransmissionMatrix> matrices_;
  Candidates candidates_;
  std::uint32_t parents_ = 0;
  std::vector<Locus> loci_;
  std::vector<std::uint16_t> classes_by_parent_;  ///< by slot and locus of the run
  bool bounds_hold_ = true;
  double side_ratio_ = 0;
  std::int32_t one_sided_cost_ = 0;

  std::vector<LocusBounds> bounds_;
  std::size_t bounds_in_use_ = 0;
  std::size_t most_bounds_ = 0;

  // For the plain scan among few parents:
  std::vector<LocusIndex> loci_to_scan_;
  TransmissionScores scan_scores_{0, 0};

  // Of the current offspring:
  std::vector<LocusBounds*> current_;  ///< at its loci that are not missing
  std::vector<std::size_t> current_loci_;
  std::vector<const LocusBounds::Scores*> current_scores_;  ///< theirs
  double log_largest_ = 0;
  std::vector<std::uint64_t> all_parents_;
  std::vector<const std::uint64_t*> possible_rows_;
  std::vector<const std::uint8_t*> cost_rows_;
  std::vector<std::uint64_t> possible_;  ///< bit by slot
  std::vector<std::uint32_t> few_;       ///< the possible parents, when they are few
  bool has_few_ = false;
  std::vector<std::uint16_t> costs_;
  std::vector<std::uint16_t> block_minima_;
  std::vector<std::uint16_t> group_minima_;    ///< of each kBlocksAtOnce blocks
  std::vector<std::uint16_t> partner_minima_;  ///< of all partners from a block on
  std::int32_t limit_ = 0;                     ///< costs of a pair above it: it cannot matter
  std::uint32_t epoch_ = 0;
  std::vector<ParentScores> parent_scores_;
  std::vector<double> score_pool_;  ///< P_R and P_J by slot and locus
};

}  // namespace kaldo

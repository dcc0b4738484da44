// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/run_observer.h"
#include "method/candidate_groups.h"
#include "search/offspring_bounds.h"

namespace kaldo {

/// The likelihoods of a parent with all its partners, summed up.
struct ParentSum {
  Slot parent;
  double sum = 0;
};

/// The likelihood of a parent with a partner that is in no table.
struct ParentLikelihood {
  Slot parent;
  double likelihood = 0;
};

/// A pair with its likelihood.
struct PairLikelihood {
  ParentPair pair;
  double likelihood = 0;
};

/// The most likely pair, and how far it stands out.
struct BestPair {
  ParentPair pair;
  double likelihood = 0;    ///< 0 without any pair
  double second = 0;        ///< of the most likely other pair; the same in a tie, 0 without one
  std::uint64_t pairs = 0;  ///< that are exactly so likely, the pair itself included
};

/// Sums up the likelihoods of the candidate pairs of one offspring after the other, leaving out
/// pairs that are proven to lie below a limit. The sibling of PairSearcher: it looks at the same
/// costs, but the limit is fixed, so that parents can be sorted by their costs and the partners
/// worth a look are always the first few.
///
/// Likelihoods are multiplied out in locus order from the expressions of the plain scan; they are
/// scaled by powers of two that the caller gives, so that neither products of many loci nor sums
/// leave the range of a double. Sums run in an order that follows from the offspring alone.
///
/// One object serves one thread.
class PairSums {
 public:
  /// P_R and P_J at one locus.
  using Scores = LocusBounds::Scores;

  explicit PairSums(std::size_t bytes = GenotypeBounds::kBytes) : bounds_(bytes) {}

  /// Prepares for the offspring of a run; see PairSearcher::Prepare. No probability of the study
  /// may be negative.
  void Prepare(const SearchStudy& study, Flow flow, std::span<const CandidateGroup> groups);

  /// Goes over to an offspring that is typed at one locus or more. All scores of the k-th locus of
  /// the run are multiplied by scales[k], a power of two: likelihoods by the squares of all at
  /// which the offspring is typed.
  void GoTo(Slot offspring, std::span<const double> scales);

  /// All pairs that may have a scaled likelihood of `limit` or more, which is above 0, and some
  /// below it. Keeps the `most_listed` most likely of them. Throws RunStopped when the observer
  /// asks.
  void SumUp(double limit, std::size_t most_listed, const RunObserver& observer);

  /// The sum over those pairs.
  double Total() const { return total_; }

  /// The sums of the parents in them, in no particular order: first parents or second ones. In the
  /// non-sexed flow every parent is a first one, whatever its place in the pair.
  std::span<const ParentSum> SumsOfFirst() const { return sums_[0]; }
  std::span<const ParentSum> SumsOfSecond() const { return sums_[1]; }

  /// The most likely pairs that were summed up, in no particular order.
  std::span<const PairLikelihood> MostLikely() const { return most_likely_; }

  /// The most likely pair of all. Of several that are exactly so likely the first one in the order
  /// of the scan. To be asked after SumUp().
  BestPair FindBest(const RunObserver& observer);

  /// The likelihood of every candidate of a side with one partner of the given scores (scaled
  /// like all others, by locus of the run), but those proven to lie below `limit`; in slot order
  /// inside groups.
  void PairWith(std::span<const Scores> partner, bool second_parents, double limit,
                std::vector<ParentLikelihood>& likelihoods);

  /// The likelihood of one parent with such a partner.
  double LikelihoodWith(std::span<const Scores> partner, Slot parent) const;

 private:
  /// The parents of one side of a group that are worth a look, by rising cost.
  struct Side {
    std::vector<Slot> slots;
    std::vector<std::uint16_t> costs;
    std::vector<double> scores;  ///< by typed locus: P_R of all, then P_J of all
    std::vector<double> sums;

    std::size_t Count() const { return slots.size(); }
  };

  void ScoreClasses(std::size_t k, const LocusGenotype& offspring, double scale);
  std::size_t EndOfClasses(std::size_t i) const;
  double MultiplyFactors(Slot parent) const;
  std::int32_t CostLimit(double limit) const;
  std::int32_t SmallestCost(SlotRange slots) const;
  std::int32_t SmallestCostOfAnyPair() const;
  void SortByCost(SlotRange slots, std::int32_t most, Side& side);
  void LookUpScores(Side& side) const;
  bool Arrange(const CandidateGroup& group);
  template <typename TakeRow>
  void Walk(const RunObserver& observer, const TakeRow& take_row);
  template <typename TakeRow>
  void WalkGroup(const RunObserver& observer, const TakeRow& take_row);
  void MultiplyRow(std::size_t first_parent, std::size_t begin,
                   std::span<double> likelihoods) const;
  void AddRow(std::size_t first_parent, std::size_t begin, std::span<const double> likelihoods);
  void CompareRow(std::size_t first_parent, std::size_t begin, std::span<const double> likelihoods);
  void ListRow(std::size_t first_parent, std::size_t begin, std::span<const double> likelihoods,
               std::size_t most);
  void TakeSums();
  ParentPair PairAt(std::size_t first_parent, std::size_t partner) const;
  const Side& Partners() const { return sides_[flow_ == Flow::kSexed ? 1 : 0]; }
  Side& Partners() { return sides_[flow_ == Flow::kSexed ? 1 : 0]; }

  std::optional<SearchStudy> study_;
  Flow flow_ = Flow::kNonSexed;
  std::span<const CandidateGroup> groups_;
  OffspringBounds bounds_;
  std::vector<std::uint64_t> everybody_;  ///< bit by slot

  // Of the current offspring:
  std::vector<std::uint32_t> typed_;
  double log_scale_ = 0;                  ///< of a likelihood
  std::vector<std::uint16_t> costs_;      ///< by slot
  std::vector<std::uint16_t> minima_;     ///< by block of slots
  std::vector<std::size_t> first_class_;  ///< by typed locus, in class_scores_
  std::vector<Scores> class_scores_;      ///< scaled
  std::vector<double> class_factors_;     ///< with the partner at hand

  // Of the current group:
  std::array<Side, 2> sides_;
  std::int32_t cost_limit_ = 0;  ///< costs of a pair above it: it is left out

  double limit_ = 0;
  double total_ = 0;
  std::array<std::vector<ParentSum>, 2> sums_;
  BestPair best_;
  std::vector<PairLikelihood> most_likely_;  ///< a heap, the least likely one in front
  std::vector<std::uint64_t> order_;
};

}  // namespace kaldo

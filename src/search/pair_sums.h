// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/run_observer.h"
#include "method/allowed_pairs.h"
#include "search/offspring_bounds.h"
#include "search/ranked_parents.h"

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

/// Who stands for a candidate: itself, or a full sib of it that is in no table.
enum class Kin { kSelf = 0, kSib = 1 };

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
  /// which the offspring is typed. Everything is then about the allowed pairs and the parents in
  /// them.
  void GoTo(Slot offspring, std::span<const double> scales, const AllowedPairs& allowed = {});

  /// All pairs that may have a scaled likelihood of `limit` or more, which is above 0, and some
  /// below it. Keeps the `most_listed` most likely of them. Throws RunStopped when the observer
  /// asks.
  void SumUp(double limit, std::size_t most_listed, const RunObserver& observer);

  /// Prepares for sums with full sibs of the candidates. Each of a sib's genes comes from one of
  /// the two parents that it shares with the candidate: half the chance of a copy that the
  /// candidate has, half of one that a stranger would have, so that its scores are the mean of
  /// both. To be called after GoTo(), with the scores of a stranger, scaled like all others.
  void AddSibs(std::span<const Scores> stranger);

  /// Sums up likewise with sibs in the place of the candidates of one or both sides; nobody is
  /// paired with its own sib. In the non-sexed flow a candidate is the first parent and a sib the
  /// second.
  void SumUp(Kin first, Kin second, double limit, const RunObserver& observer);

  /// The sum over those pairs.
  double Total() const { return total_; }

  /// The sums of the parents in them, in no particular order: first parents or second ones. In the
  /// non-sexed flow every parent is a first one, whatever its place in the pair, unless a candidate
  /// is paired with a sib; a known parent is the only first one.
  std::span<const ParentSum> SumsOfFirst() const { return sums_[0]; }
  std::span<const ParentSum> SumsOfSecond() const { return sums_[1]; }

  /// The most likely pairs that were summed up, the likeliest first, equals in file order.
  std::span<const PairLikelihood> MostLikely() const { return most_likely_; }

  /// The most likely pair of all. Of several that are exactly so likely the first one in the order
  /// of the scan. To be asked after the first SumUp().
  BestPair FindBest(const RunObserver& observer);

  /// The likelihood of every candidate of a side, or of its sib, with one partner of the given
  /// scores (scaled like all others, by locus of the run), but those proven to lie below `limit`;
  /// in slot order inside groups.
  void PairWith(std::span<const Scores> partner, bool second_parents, Kin kin, double limit,
                std::vector<ParentLikelihood>& likelihoods);

  /// The likelihood of one parent with such a partner.
  double LikelihoodWith(std::span<const Scores> partner, Slot parent) const;

 private:
  void MarkCandidates(const AllowedPairs& allowed);
  void ScoreClasses(std::size_t k, const LocusGenotype& offspring, double scale);
  void AddUpCostsOfSibs();
  const ClassScores& Scored(Kin kin) const { return scored_[static_cast<std::size_t>(kin)]; }
  double MultiplyFactors(Slot parent) const;
  std::int32_t CostLimit(double limit) const;
  std::int32_t SmallestCostOfAnyPair() const;
  bool Arrange(const CandidateGroup& group);
  template <typename TakeRow>
  void Walk(const RunObserver& observer, const TakeRow& take_row);
  template <typename TakeRow>
  void WalkGroup(const RunObserver& observer, const TakeRow& take_row);
  void LeaveOutItself(std::size_t first_parent, std::size_t begin,
                      std::span<double> likelihoods) const;
  void Begin(Kin first, Kin second, double limit);
  void AddRow(std::size_t first_parent, std::size_t begin, std::span<const double> likelihoods);
  void CompareRow(std::size_t first_parent, std::size_t begin, std::span<const double> likelihoods);
  void ListRow(std::size_t first_parent, std::size_t begin, std::span<const double> likelihoods,
               std::size_t most);
  void TakeSums();
  ParentPair PairAt(std::size_t first_parent, std::size_t partner) const;

  /// Whether both parents of a pair come from one list, each pair once.
  bool SharesList() const { return own_->SidesAreOne() && kin_[0] == kin_[1]; }
  bool MayMeetItself() const { return flow_ == Flow::kNonSexed && !SharesList(); }
  const RankedParents& Partners() const { return sides_[SharesList() ? 0 : 1]; }
  RankedParents& Partners() { return sides_[SharesList() ? 0 : 1]; }

  std::optional<SearchStudy> study_;
  Flow flow_ = Flow::kNonSexed;
  std::span<const CandidateGroup> groups_;
  OffspringBounds bounds_;

  // Of the current offspring:
  std::optional<GroupsToSum> own_;
  std::vector<std::uint64_t> candidates_;  ///< bit by slot
  std::vector<std::uint32_t> typed_;
  std::vector<std::uint16_t> minima_;  ///< of costs, by block of slots
  std::array<ClassScores, 2> scored_;  ///< by Kin
  std::vector<double> class_factors_;  ///< with the partner at hand

  // Of the current group:
  std::array<RankedParents, 2> sides_;
  std::vector<std::uint32_t> place_of_partner_;  ///< by slot
  std::int32_t cost_limit_ = 0;                  ///< costs of a pair above it: it is left out

  std::array<Kin, 2> kin_{};
  double limit_ = 0;
  double total_ = 0;
  std::array<std::vector<ParentSum>, 2> sums_;
  BestPair best_;
  std::vector<PairLikelihood> most_likely_;  ///< while they are summed up a heap, the last in front
};

}  // namespace kaldo

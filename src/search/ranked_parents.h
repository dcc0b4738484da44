// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "search/offspring_bounds.h"

namespace kaldo {

/// What the genotypes of the parents, or of others that resemble them, can have given to one
/// offspring, scaled.
struct ClassScores {
  std::vector<std::size_t> first;  ///< by locus at which the offspring is typed, in `scores`
  std::vector<LocusBounds::Scores> scores;  ///< by class of parents, see OffspringBounds::Classes

  std::vector<std::uint16_t> costs;  ///< by slot

  /// No |v|, multiplied over the loci, is more than exp of this and of minus the cost of a parent.
  double log_largest = 0;

  std::size_t End(std::size_t i) const {
    return i + 1 < first.size() ? first[i + 1] : scores.size();
  }
  std::int32_t SmallestCost(SlotRange slots) const;
};

/// The parents of one side of a group that are worth a look, by rising cost, their scores side by
/// side.
class RankedParents {
 public:
  /// Lists those of the slots with a cost of at most `most`; their sums are 0.
  void Rank(SlotRange slots, const ClassScores& scores, std::int32_t most,
            const OffspringBounds& bounds);

  std::size_t Count() const { return slots_.size(); }
  Slot SlotAt(std::size_t i) const { return slots_[i]; }
  std::span<const std::uint16_t> Costs() const { return costs_; }

  /// Sums that belong to the parents, in the same order.
  std::span<double> Sums() { return sums_; }
  std::span<const double> Sums() const { return sums_; }

  /// The likelihoods of one of these parents with partners from the `begin`-th on, in locus order.
  void Multiply(std::size_t i, const RankedParents& partners, std::size_t begin,
                std::span<double> likelihoods) const;

 private:
  void LookUpScores(const ClassScores& scores, const OffspringBounds& bounds);

  std::size_t loci_ = 0;
  std::vector<Slot> slots_;
  std::vector<std::uint16_t> costs_;
  std::vector<double> scores_;  ///< by typed locus: P_R of all, then P_J of all
  std::vector<double> sums_;
  std::vector<std::uint64_t> order_;
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "method/kept_pairs.h"
#include "search/genotype_bounds.h"
#include "search/leanings.h"

namespace kaldo {

/// What the collected parents can have given to one offspring, over all its loci.
class OffspringBounds {
 public:
  explicit OffspringBounds(std::size_t bytes = GenotypeBounds::kBytes) : bounds_(bytes) {}

  void Prepare(const SearchStudy& study);

  /// Goes over to an offspring, typed at these loci of the run, that the parents with a bit set can
  /// have given something. Both must outlive what is asked about it.
  void Collect(Slot offspring, std::span<const std::uint32_t> typed,
               std::span<const std::uint64_t> possible);

  /// No likelihood is more than exp of this and of minus the costs of the two parents.
  double LogLargest() const { return 2 * log_largest_; }

  /// No |v| of one parent, multiplied over the loci, is more than exp of this and of minus its
  /// cost.
  double LogLargestOfOne() const { return log_largest_; }

  /// The loci of the run at which the offspring is typed.
  std::span<const std::uint32_t> TypedLoci() const { return typed_; }

  /// The classes of parents at the k-th locus of the run.
  const ParentClasses& Classes(std::size_t k) const { return bounds_.Classes(k); }

  /// The classes of one parent at all loci of the run, typed or not.
  const std::uint16_t* ClassesOf(Slot parent) const { return bounds_.ClassesOf(parent); }

  /// False where the bounds say nothing about a likelihood; costs are 0 then.
  bool AreSound() const { return bounds_.AreSound(); }

  const ClashCosts& CostsOfClashes() const { return clash_costs_; }
  std::size_t LeaningWords() const { return leaning_words_; }

  /// The leanings of one parent, into so many words.
  void WriteLeanings(Slot parent, std::uint64_t* words) const;

  /// The cost of one parent over all loci.
  std::uint16_t Cost(Slot parent) const;

  /// The costs of all parents by slot, filled up to whole blocks, with the smallest of each block.
  /// One that is not possible gets `impossible`.
  void AddUpCosts(std::uint16_t impossible, std::span<std::uint16_t> costs,
                  std::span<std::uint16_t> minima);

  /// The likelihood of a pair, from the same expressions in the same order as in the plain scan.
  double Likelihood(ParentPair pair) const;

 private:
  GenotypeBounds bounds_;
  ClashCosts clash_costs_;
  double log_largest_ = 0;

  // At the loci at which the offspring is typed:
  std::span<const std::uint32_t> typed_;
  std::span<const std::uint64_t> possible_;
  std::size_t leaning_words_ = 0;
  std::array<LocusBounds*, kMaxLoci> bounds_at_{};
  std::array<const LocusBounds::Scores*, kMaxLoci> scores_at_{};
  std::array<const std::uint8_t*, kMaxLoci> leanings_at_{};
  std::array<const std::uint8_t*, kMaxLoci> costs_at_{};
  std::vector<const std::uint8_t*> cost_rows_;
};

}  // namespace kaldo

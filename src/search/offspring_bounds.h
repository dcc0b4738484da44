// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "search/genotype_bounds.h"
#include "search/giving_marks.h"
#include "search/possible_parents.h"

namespace kaldo {

/// What the collected parents can have given to one offspring, over all its loci.
class OffspringBounds {
 public:
  explicit OffspringBounds(std::size_t bytes = GenotypeBounds::kBytes) : bounds_(bytes) {}

  /// For the arguments see GenotypeBounds.
  void Prepare(const GenotypeTable& table, std::size_t parents, std::span<const LocusIndex> loci,
               std::span<const TransmissionMatrix> matrices);

  /// Goes over to an offspring, of which the possible parents are known already. They must outlive
  /// what is asked about it.
  void Collect(Slot offspring, const PossibleParents& possible);

  /// No likelihood is more than exp of this and of minus the costs of the two parents.
  double LogLargest() const { return 2 * log_largest_; }

  /// False where the bounds say nothing about a likelihood; costs are 0 then.
  bool Hold() const { return bounds_.Hold(); }

  const MarkCosts& CostsOfMarks() const { return mark_costs_; }
  std::size_t MarkWords() const { return mark_words_; }

  /// The marks of one parent, into so many words.
  void MarksOfParent(std::uint32_t parent, std::uint64_t* marks) const;

  std::uint16_t CostOf(std::uint32_t parent) const;

  /// The costs of all parents by slot, filled up to whole blocks, with the smallest of each block.
  /// One that is not possible gets `impossible`.
  void AddUpCosts(std::uint16_t impossible, std::span<std::uint16_t> costs,
                  std::span<std::uint16_t> minima);

  /// The likelihood of a pair, from the same expressions in the same order as in the plain scan.
  double Likelihood(std::uint32_t one, std::uint32_t two) const;

 private:
  GenotypeBounds bounds_;
  MarkCosts mark_costs_;
  double log_largest_ = 0;

  // At the loci at which the offspring is typed:
  std::span<const std::uint32_t> typed_;
  std::span<const std::uint64_t> possible_;
  std::size_t mark_words_ = 0;
  std::array<LocusBounds*, kMaxLoci> bounds_at_{};
  std::array<const LocusBounds::Scores*, kMaxLoci> scores_at_{};
  std::array<const std::uint8_t*, kMaxLoci> marks_at_{};
  std::array<const std::uint8_t*, kMaxLoci> costs_at_{};
  std::vector<const std::uint8_t*> cost_rows_;
};

}  // namespace kaldo

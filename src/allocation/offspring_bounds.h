// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "allocation/genotype_bounds.h"
#include "allocation/giving_marks.h"

namespace kaldo {

/// What the collected parents can have given to one offspring, over all its loci.
class OffspringBounds {
 public:
  /// For the arguments see GenotypeBounds.
  void Prepare(const GenotypeTable& table, std::size_t parents, std::span<const LocusIndex> loci,
               std::span<const TransmissionMatrix> matrices);

  /// Goes over to an offspring. False when fewer than two parents can have given something at all
  /// of its loci: then no pair has any likelihood, and nothing else here may be asked.
  bool Collect(Slot offspring);

  std::uint32_t Parents() const { return parents_; }

  /// Whether some parent cannot have given anything at some locus.
  bool SomeImpossible() const { return possible_ != all_parents_.data(); }

  /// Bit by slot: the parent can have given something at every locus.
  std::span<const std::uint64_t> Possible() const { return {possible_, all_parents_.size()}; }

  /// No likelihood is more than exp of this and of minus the costs of the two parents.
  double LogLargest() const { return 2 * log_largest_; }

  /// False where the bounds say nothing about a likelihood; costs are 0 then.
  bool Hold() const { return bounds_.Hold(); }

  const MarkCosts& CostsOfMarks() const { return mark_costs_; }
  std::size_t MarkWords() const { return (typed_ + kLociPerMarkWord - 1) / kLociPerMarkWord; }

  /// The cost of one parent, and its marks into so many words.
  std::uint16_t CostOf(std::uint32_t parent, std::uint64_t* marks) const;

  /// The costs of all parents by slot, filled up to whole blocks, with the smallest of each block.
  /// One that is not possible gets `impossible`.
  void AddUpCosts(std::uint16_t impossible, std::span<std::uint16_t> costs,
                  std::span<std::uint16_t> minima);

  /// The likelihood of a pair, from the same expressions in the same order as in the plain scan.
  double Likelihood(std::uint32_t one, std::uint32_t two) const;

 private:
  struct TypedLocus {
    std::size_t k = 0;  ///< locus of the run
    const LocusBounds::Scores* scores = nullptr;
    const LocusBounds::Bound* bounds = nullptr;
    LocusBounds* all = nullptr;
  };
  // The parents left so far and this many loci more are brought together at once.
  static constexpr std::size_t kRowsAtOnce = 5;

  GenotypeBounds bounds_;
  MarkCosts mark_costs_;
  std::uint32_t parents_ = 0;
  std::vector<std::uint64_t> all_parents_;
  std::vector<std::uint64_t> some_parents_;
  const std::uint64_t* possible_ = nullptr;  ///< one of the two above
  std::array<TypedLocus, kMaxLoci> loci_;
  std::size_t typed_ = 0;  ///< loci in use of the above: those that are not missing
  double log_largest_ = 0;
  std::vector<const std::uint8_t*> cost_rows_;
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "genotypes/genotype_table.h"

namespace kaldo {

/// The distinct genotypes of the collected parents at one locus. Parents are many, genotypes few:
/// what a genotype can have given to an offspring is worked out once for all its carriers. The
/// order of the two alleles does not matter to a likelihood.
class ParentClasses {
 public:
  /// Sorts the parents, slots 0 to `parents` - 1, of an indexed locus with so many alleles, an
  /// undefined one included, into classes. Memory once taken is kept.
  void Sort(std::span<const LocusGenotype> parents, std::size_t alleles);

  std::size_t Count() const { return first_.size(); }

  /// A parent that carries the genotype of a class.
  const LocusGenotype& Genotype(std::size_t number) const { return first_[number]; }

  /// The class of each parent, by slot.
  std::span<const std::uint16_t> OfParents() const { return of_parents_; }

 private:
  std::vector<LocusGenotype> first_;
  std::vector<std::uint16_t> of_parents_;
  std::vector<std::uint16_t> number_of_pair_;  ///< class by two allele places, while sorting
};

}  // namespace kaldo

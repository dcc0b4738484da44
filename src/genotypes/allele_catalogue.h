// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <span>

#include <tl/expected.hpp>

#include "genotypes/capacities.h"
#include "genotypes/genotype_table.h"
#include "genotypes/units.h"

namespace kaldo {

/// The distinct allele sizes of one locus with their counts over all slots of a table.
///
/// Two habits of this program matter to whoever reads the frequencies:
///  - undefined alleles are counted on the first listed size, so that the counts of a locus always
///    sum to twice the number of slots;
///  - sorting moves the sizes and leaves the counts where they are: after sorting, the k-th count
///    belongs to the k-th size in order of first appearance.
class AlleleCatalogue {
 public:
  AlleleCatalogue() = default;

  /// Lists the sizes of `genotypes` in order of first appearance: all first alleles, then all
  /// second alleles. With more than 100 distinct sizes the slot of the individual that brings the
  /// 101st comes back instead.
  static tl::expected<AlleleCatalogue, Slot> Build(std::span<const LocusGenotype> genotypes);

  /// Puts the sizes, not the counts, into ascending order.
  void SortSizes();

  /// The place of a listed size; the first place for an undefined allele; nothing for any other.
  std::optional<AlleleIndex> LookUp(AlleleSize size) const;

  /// Sets the indices of all genotypes of the locus to the places of their alleles here. Every size
  /// must be listed.
  void ReIndex(std::span<LocusGenotype> genotypes) const;

  std::span<const AlleleSize> Sizes() const { return std::span(sizes_).first(distinct_); }

  /// Gene copies by place; see above for what sorting does to them. Without any listed size, the
  /// first place still counts the undefined alleles.
  std::span<const float> Counts() const { return counts_; }

 private:
  std::array<AlleleSize, kMaxAlleles> sizes_{};
  std::array<float, kMaxAlleles> counts_{};
  std::size_t distinct_ = 0;
};

}  // namespace kaldo

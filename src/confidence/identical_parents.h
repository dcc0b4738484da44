// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "genotypes/genotype_table.h"

namespace kaldo {

/// Candidates of one side that carry the same alleles at all loci of a run, in whatever order they
/// are written: no genotype of an offspring tells them apart, and they share their probability.
class IdenticalParents {
 public:
  IdenticalParents() = default;

  /// Compares the candidates at the slots of `ranges`.
  IdenticalParents(const GenotypeTable& table, std::span<const LocusIndex> loci,
                   std::span<const SlotRange> ranges);

  /// The candidates like this one, itself included, in file order.
  std::span<const Slot> Like(Slot candidate) const {
    const Stretch stretch = stretches_[candidate.Value()];
    return std::span(sorted_).subspan(stretch.begin, stretch.count);
  }

 private:
  struct Stretch {
    std::uint32_t begin = 0;
    std::uint32_t count = 0;
  };

  std::vector<Slot> sorted_;        ///< those alike stand together
  std::vector<Stretch> stretches_;  ///< in sorted_, by slot
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/allocation_decision.h"

#include <array>

#include "genotypes/capacities.h"

namespace kaldo {

std::vector<LocusComparison> CompareWithPair(const GenotypeTable& table, Slot offspring,
                                             ParentPair pair, const LociOfRun& loci) {
  std::vector<LocusComparison> comparisons;
  comparisons.reserve(loci.loci.size());
  for (std::size_t k = 0; k < loci.loci.size(); ++k) {
    const LocusIndex locus = loci.loci[k];
    comparisons.push_back(
        ClassifyLocus(table.Genotype(locus, offspring), table.Genotype(locus, pair.parent1),
                      table.Genotype(locus, pair.parent2), loci.unit_distances[k]));
  }
  return comparisons;
}

void DecideSides(const GenotypeTable& table, Slot offspring, const LociOfRun& loci,
                 OffsetTolerance tolerance, AllocationOutcome& outcome) {
  if (!outcome.HasPair()) {
    return;
  }
  // Simulations come here millions of times: the offsets stay on the stack.
  std::array<UnitDistances, kMaxLoci> offsets1;
  std::array<UnitDistances, kMaxLoci> offsets2;
  const ParentPair pair = outcome.pairs.front();
  const std::size_t count = loci.loci.size();
  for (std::size_t k = 0; k < count; ++k) {
    const LocusIndex locus = loci.loci[k];
    const LocusComparison comparison =
        ClassifyLocus(table.Genotype(locus, offspring), table.Genotype(locus, pair.parent1),
                      table.Genotype(locus, pair.parent2), loci.unit_distances[k]);
    offsets1.at(k) = comparison.offset_par1;
    offsets2.at(k) = comparison.offset_par2;
  }
  const ToleranceVerdict par1 = CheckTolerance(std::span(offsets1).first(count), tolerance);
  const ToleranceVerdict par2 = CheckTolerance(std::span(offsets2).first(count), tolerance);
  outcome.par1_uncollected = par1.uncollected;
  outcome.par2_uncollected = par2.uncollected;
  outcome.errors_par1 = par1.errors;
  outcome.errors_par2 = par2.errors;
}

}  // namespace kaldo

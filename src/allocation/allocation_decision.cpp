// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_decision.h"

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

PairOffsets OffsetsOf(std::span<const LocusComparison> comparisons) {
  PairOffsets offsets;
  for (const LocusComparison& locus : comparisons) {
    offsets.par1.push_back(locus.offset_par1);
    offsets.par2.push_back(locus.offset_par2);
  }
  return offsets;
}

void DecideSides(const GenotypeTable& table, Slot offspring, const LociOfRun& loci,
                 OffsetTolerance tolerance, AllocationOutcome& outcome) {
  if (!outcome.HasPair()) {
    return;
  }
  const auto offsets = OffsetsOf(CompareWithPair(table, offspring, outcome.pairs.front(), loci));
  const ToleranceVerdict par1 = CheckTolerance(offsets.par1, tolerance);
  const ToleranceVerdict par2 = CheckTolerance(offsets.par2, tolerance);
  outcome.par1_uncollected = par1.uncollected;
  outcome.par2_uncollected = par2.uncollected;
  outcome.errors_par1 = par1.errors;
  outcome.errors_par2 = par2.errors;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulated_parents.h"

namespace kaldo {

namespace {

constexpr std::uint64_t kDrawsPerLocus = 2;

}  // namespace

std::uint64_t DrawsPerParent(std::size_t number_of_loci) { return kDrawsPerLocus * number_of_loci; }

void DrawParents(GenotypeTable& table, SlotRange slots, const RepresentativeSample& sample,
                 LocusFlags in_use, const UnitDraw& draw, RandomNumbers& random) {
  // Parent after parent, locus after locus, in use or not: two draws, one per allele.
  for (std::uint32_t slot = slots.begin; slot < slots.end; ++slot) {
    for (std::uint32_t l = 0; l < in_use.size(); ++l) {
      const double u1 = draw(random);
      const double u2 = draw(random);
      LocusGenotype genotype;
      if (in_use[l] != 0) {
        const auto allele = [&](double u) {
          return draw.IsFine() ? sample.DrawFinely(LocusIndex{l}, u)
                               : sample.Draw(LocusIndex{l}, u);
        };
        genotype.allele1 = allele(u1);
        genotype.allele2 = allele(u2);
      }
      table.Genotype(LocusIndex{l}, Slot{slot}) = genotype;
    }
  }
}

}  // namespace kaldo

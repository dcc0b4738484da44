// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/direct_likelihood.h"

namespace kaldo {

void DirectLikelihood::Prepare(const GenotypeTable& table, std::size_t parents,
                               std::span<const LocusIndex> loci,
                               std::span<const TransmissionMatrix> matrices) {
  loci_.resize(loci.size());
  of_parents_.resize(parents * loci.size());
  for (std::size_t k = 0; k < loci.size(); ++k) {
    const auto genotypes = table.Locus(loci[k]);
    loci_[k] = {genotypes, &matrices[loci[k].Value()]};
    for (std::size_t parent = 0; parent < parents; ++parent) {
      of_parents_[parent * loci.size() + k] = {genotypes[parent].index1.Value(),
                                               genotypes[parent].index2.Value()};
    }
  }
}

double DirectLikelihood::Of(Slot offspring, std::span<const std::uint32_t> typed_loci, Slot parent1,
                            Slot parent2) const {
  const Alleles* const alleles1 = of_parents_.data() + parent1.Value() * loci_.size();
  const Alleles* const alleles2 = of_parents_.data() + parent2.Value() * loci_.size();
  double product = 1;  // 1 times the first factor is that factor
  for (const std::uint32_t k : typed_loci) {
    const LocusGenotype& genotype = loci_[k].genotypes[offspring.Value()];
    const TransmissionMatrix& matrix = *loci_[k].matrix;
    const auto score = [&matrix](Alleles alleles, AlleleIndex given) {
      return matrix(alleles.first, given.Value()) + matrix(alleles.second, given.Value());
    };
    product *= score(alleles1[k], genotype.index1) * score(alleles2[k], genotype.index2) +
               score(alleles1[k], genotype.index2) * score(alleles2[k], genotype.index1);
  }
  return product;
}

}  // namespace kaldo

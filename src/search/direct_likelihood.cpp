// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/direct_likelihood.h"

namespace kaldo {

void DirectLikelihood::Prepare(const SearchStudy& study) {
  const std::size_t loci = study.loci.size();
  loci_.resize(loci);
  of_parents_.resize(study.parents * loci);
  for (std::size_t k = 0; k < loci; ++k) {
    const auto genotypes = study.Genotypes(k);
    loci_[k] = {.genotypes = genotypes, .matrix = &study.Matrix(k)};
    for (std::size_t parent = 0; parent < study.parents; ++parent) {
      of_parents_[parent * loci + k] = {.first = genotypes[parent].index1.Value(),
                                        .second = genotypes[parent].index2.Value()};
    }
  }
}

double DirectLikelihood::Likelihood(Slot offspring, std::span<const std::uint32_t> typed_loci,
                                    ParentPair pair) const {
  const Alleles* const alleles1 = of_parents_.data() + pair.parent1.Value() * loci_.size();
  const Alleles* const alleles2 = of_parents_.data() + pair.parent2.Value() * loci_.size();
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

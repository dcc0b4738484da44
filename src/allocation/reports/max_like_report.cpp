// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/max_like_report.h"

#include "allocation/reports/genotype_text.h"

namespace kaldo {

std::string IndividualLine(const AllocationInput& input, const AllocationResult& result,
                           Slot slot) {
  const std::size_t digits = input.digits_per_field / 2;
  std::string line = NameField(input.table.Name(slot).Text()) + '\t';
  for (const LocusIndex locus : result.loci.loci) {
    const LocusGenotype& genotype = input.table.Genotype(locus, slot);
    line += PaddedAllele(genotype.allele1, digits);
    line += PaddedAllele(genotype.allele2, digits);
    line += ' ';
  }
  return line + '\n';
}

std::string MaxLikeBlock(const AllocationInput& input, const AllocationResult& result,
                         std::size_t offspring) {
  const AllocationOutcome& outcome = result.outcomes[offspring];
  const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(offspring)};
  std::string block = "Offspring \n" + IndividualLine(input, result, slot);
  if (outcome.more_than_five) {
    block += "more than 5 potential pairs\n";
  } else if (!outcome.HasPair()) {
    block += "Parents\nnone\n";
  } else {
    for (const ParentPair pair : outcome.Pairs()) {
      block += "Parents\n" + IndividualLine(input, result, pair.parent1) +
               IndividualLine(input, result, pair.parent2);
    }
  }
  return block + "*************************************\n\n";
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulated_individuals.h"

#include <fmt/format.h>

#include "allocation/reports/genotype_text.h"
#include "simulation/simulated_parents.h"

namespace kaldo {

namespace {

std::string GenotypeFields(const GenotypeTable& table, Slot slot, std::size_t digits_per_field) {
  std::string fields;
  for (std::uint32_t locus = 0; locus < table.NumberOfLoci(); ++locus) {
    const LocusGenotype& genotype = table.Genotype(LocusIndex{locus}, slot);
    fields += PaddedAllele(genotype.allele1, digits_per_field / 2);
    fields += PaddedAllele(genotype.allele2, digits_per_field / 2);
    fields += ' ';
  }
  return fields + '\n';
}

}  // namespace

std::string ParentsText(const SimulatedIteration& iteration, SlotRange parents,
                        std::size_t digits_per_field) {
  std::string text;
  for (std::uint32_t slot = parents.begin; slot < parents.end; ++slot) {
    text.append(kSimulatedParentName)
        .append(GenotypeFields(iteration.Table(), Slot{slot}, digits_per_field));
  }
  return text;
}

std::string PseudoOffspringText(const SimulatedIteration& iteration, std::size_t digits_per_field) {
  std::string text;
  for (std::uint32_t i = 0; i < iteration.TrueParents().size(); ++i) {
    const ParentPair truth = iteration.TrueParents()[i];
    text += fmt::format("{:<3} {:<3} ", truth.parent1.Value(), truth.parent2.Value());
    text +=
        GenotypeFields(iteration.Table(), Slot{iteration.Offspring().begin + i}, digits_per_field);
  }
  return text;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/pseudo_offspring.h"

#include "simulation/off_ladder.h"

namespace kaldo {

namespace {

constexpr std::uint64_t kDrawsPerLocus = 4;

Slot DrawFrom(SlotRange range, RandomNumbers& random) {
  return Slot{range.begin + random.Below(static_cast<std::uint32_t>(range.Size()))};
}

AlleleIndex Chosen(const LocusGenotype& parent, std::uint32_t choice) {
  return choice % 2 == 0 ? parent.index1 : parent.index2;
}

}  // namespace

ParentPair DrawTrueParents(const TrueParentRanges& ranges, RandomNumbers& random) {
  ParentPair parents;
  do {
    parents.parent1 = DrawFrom(ranges.first, random);
    parents.parent2 = DrawFrom(ranges.second, random);
  } while (ranges.must_differ && parents.parent1 == parents.parent2);
  return parents;
}

std::uint64_t DrawsPerPseudoOffspring(std::size_t number_of_loci) {
  return kDrawsPerLocus * number_of_loci;
}

AlleleIndex Transmit(const TransmissionMatrix& matrix, AlleleIndex parental, double u) {
  double sum = 0;
  for (std::size_t received = 0; received < matrix.Alleles(); ++received) {
    sum += matrix(parental.Value(), received);
    if (sum != 0 && u <= sum) {
      return AlleleIndex{static_cast<std::uint8_t>(received)};
    }
  }
  return ReadBehindRow(matrix, parental);
}

void ProducePseudoOffspring(GenotypeTable& table, Slot offspring, ParentPair parents,
                            LocusFlags in_use, std::span<const TransmissionMatrix> matrices,
                            std::span<const ReadingTable> readings,
                            std::span<const AlleleCatalogue> catalogues, const UnitDraw& draw,
                            RandomNumbers& random) {
  // Four draws per locus, in use or not: which allele of the first parent, which of the second, the
  // reading of the first, that of the second.
  for (std::uint32_t l = 0; l < in_use.size(); ++l) {
    const LocusIndex locus{l};
    const std::uint32_t choice1 = random.Next();
    const std::uint32_t choice2 = random.Next();
    const std::uint64_t reading1 = draw.Step(random);
    const std::uint64_t reading2 = draw.Step(random);
    LocusGenotype genotype;
    if (in_use[l] != 0) {
      const auto sizes = catalogues[l].Sizes();
      const auto read = [&](AlleleIndex parental, std::uint64_t step) {
        return readings[l].IsEmpty() ? Transmit(matrices[l], parental, draw.At(step))
                                     : readings[l].Read(parental, step);
      };
      genotype.index1 = read(Chosen(table.Genotype(locus, parents.parent1), choice1), reading1);
      genotype.index2 = read(Chosen(table.Genotype(locus, parents.parent2), choice2), reading2);
      genotype.allele1 = sizes[genotype.index1.Value()];
      genotype.allele2 = sizes[genotype.index2.Value()];
    }
    table.Genotype(locus, offspring) = genotype;
  }
}

}  // namespace kaldo

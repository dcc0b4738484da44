// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/matrices_report.h"

#include <fmt/format.h>

#include "allocation/reports/condition_record.h"
#include "allocation/reports/genotype_text.h"

namespace kaldo {

namespace {

std::string Heading(Flow flow) {
  const bool sexed = flow == Flow::kSexed;
  return fmt::format(
      "{}\t{}\t{}\t\tCondition\t\tParent -> Rejeton\t\tCondensé\t/ Dist_unit\tOffset\n\n",
      NameField("Rejeton"), sexed ? "Male" : "Parent1", sexed ? "Female" : "Parent2");
}

std::string GenotypeText(const LocusGenotype& genotype, std::size_t digits) {
  return PaddedAllele(genotype.allele1, digits) + ' ' + PaddedAllele(genotype.allele2, digits);
}

std::string LociLines(std::span<const LocusComparison> comparisons, std::size_t digits) {
  std::string lines;
  for (const LocusComparison& locus : comparisons) {
    lines += fmt::format("{}\t{}\t{}\t\t{}\n\n", GenotypeText(locus.offspring, digits),
                         GenotypeText(locus.par1, digits), GenotypeText(locus.par2, digits),
                         ConditionRecord(locus));
  }
  return lines;
}

std::string LociLinesWithoutPair(const MatricesReport& report, Slot offspring) {
  std::string lines;
  for (const LocusIndex locus : report.loci.loci) {
    lines += GenotypeText(report.table.Genotype(locus, offspring), report.digits_per_field / 2) +
             "\t   *   \t\t   *   \n\n\n";
  }
  return lines;
}

/// The offsets of both parents over the compared loci, all 0 without a pair.
struct PairOffsets {
  std::vector<UnitDistances> par1;
  std::vector<UnitDistances> par2;
};

PairOffsets OffsetsOf(std::span<const LocusComparison> comparisons) {
  PairOffsets offsets;
  for (const LocusComparison& locus : comparisons) {
    offsets.par1.push_back(locus.offset_par1);
    offsets.par2.push_back(locus.offset_par2);
  }
  return offsets;
}

std::string OffsetsLine(std::string_view label, std::span<const UnitDistances> offsets) {
  std::string line = fmt::format("{}\t\t[  ", label);
  for (const UnitDistances offset : offsets) {
    line += fmt::format("{}  ", offset.Value());
  }
  return line + "]\n";
}

}  // namespace

std::string MatricesBlock(const MatricesReport& report, Slot offspring,
                          const AllocationOutcome& outcome) {
  std::string block = Heading(report.flow);
  PairOffsets offsets;
  if (outcome.HasPair()) {
    const auto comparisons =
        CompareWithPair(report.table, offspring, outcome.pairs.front(), report.loci);
    block += LociLines(comparisons, report.digits_per_field / 2);
    offsets = OffsetsOf(comparisons);
  } else {
    block += LociLinesWithoutPair(report, offspring);
    offsets.par1.resize(report.loci.loci.size());
    offsets.par2.resize(report.loci.loci.size());
  }
  block += OffsetsLine("Offsets Parent_1 :", offsets.par1);
  block += OffsetsLine("Offsets Parent_2 :", offsets.par2);
  block += fmt::format("Offset maximum toléré : {}\n", report.tolerance.Value());
  block += fmt::format("offset_par1_depasse = {}\n", outcome.par1_uncollected ? "Oui" : "Non");
  block += fmt::format("offset_par2_depasse = {}\n", outcome.par2_uncollected ? "Oui" : "Non");
  return block + '\n';
}

}  // namespace kaldo

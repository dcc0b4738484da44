// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/genotype_reader.h"

namespace kaldo {

namespace {

AlleleSize SizeOf(std::string_view digits) {
  std::uint32_t size = 0;
  for (const char digit : digits) {
    size = size * 10 + static_cast<std::uint32_t>(digit - '0');
  }
  return AlleleSize{size};
}

}  // namespace

SlotRange AppendIndividuals(const TokenFile& file, RecordLayout layout, const LociList& loci,
                            GenotypeTable& table) {
  const auto begin = static_cast<std::uint32_t>(table.NumberOfIndividuals());
  const auto in_use = loci.LociInUse();
  RecordCursor cursor(file.Tokens(), layout);
  while (!cursor.AtEnd()) {
    cursor.Next();
    const Slot slot = table.AddIndividual(cursor.Name().text);
    if (cursor.IsSeparator()) {
      continue;
    }
    for (const LocusIndex locus : in_use) {
      const std::string_view field = cursor.Fields()[locus.Value()].text;
      LocusGenotype& genotype = table.Genotype(locus, slot);
      genotype.allele1 = SizeOf(field.substr(0, field.size() / 2));
      genotype.allele2 = SizeOf(field.substr(field.size() / 2));
    }
  }
  return {begin, static_cast<std::uint32_t>(table.NumberOfIndividuals())};
}

}  // namespace kaldo

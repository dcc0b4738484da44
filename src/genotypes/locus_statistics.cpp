// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/locus_statistics.h"

#include <algorithm>

#include "genotypes/genotype_reader.h"
#include "genotypes/stepping_condition.h"
#include "genotypes/unit_distance.h"

namespace kaldo {

namespace {

double ExpectedHeterozygosity(const LocusStatistics& statistics, std::size_t typed) {
  const double copies = 2.0 * static_cast<double>(typed);
  double homozygotes = 0;
  for (const auto& [size, count] : statistics.alleles) {
    const double frequency = static_cast<double>(count) / copies;
    homozygotes += frequency * frequency;
  }
  return copies / (copies - 1) * (1 - homozygotes);
}

LocusStatistics StatisticsOf(std::span<const LocusGenotype> genotypes,
                             std::span<const Slot> individuals) {
  LocusStatistics statistics;
  statistics.individuals = individuals.size();
  std::size_t heterozygotes = 0;
  for (const Slot slot : individuals) {
    const LocusGenotype& genotype = genotypes[slot.Value()];
    if (genotype.IsMissing()) {
      ++statistics.undefined;
      continue;
    }
    ++statistics.alleles[genotype.allele1];
    ++statistics.alleles[genotype.allele2];
    heterozygotes += genotype.allele1 == genotype.allele2 ? 0 : 1;
  }
  const std::size_t typed = statistics.individuals - statistics.undefined;
  if (typed > 0) {
    statistics.observed_heterozygosity =
        static_cast<double>(heterozygotes) / static_cast<double>(typed);
    statistics.expected_heterozygosity = ExpectedHeterozygosity(statistics, typed);
  }
  std::vector<AlleleSize> sizes;
  for (const auto& [size, count] : statistics.alleles) {
    sizes.push_back(size);
  }
  if (sizes.size() > 1) {
    statistics.unit_distance = UnitDistance(sizes);
  }
  statistics.in_step = IsInStep(sizes);
  return statistics;
}

/// Loads the file and tells the slots of its individuals, separators left out.
std::vector<Slot> Load(const CheckedFile& file, const LociList& all_loci, GenotypeTable& table) {
  const RecordLayout layout{all_loci.Count(), file.separators};
  const SlotRange range = AppendIndividuals(*file.tokens, layout, all_loci, table);
  std::vector<Slot> individuals;
  RecordCursor cursor(file.tokens->Tokens(), layout);
  for (std::uint32_t slot = range.begin; slot < range.end; ++slot) {
    cursor.Next();
    if (!cursor.IsSeparator()) {
      individuals.emplace_back(slot);
    }
  }
  return individuals;
}

}  // namespace

std::vector<LocusStatistics> StatisticsOfLoci(std::span<const CheckedFile> files,
                                              const LociList& loci) {
  LociList all_loci = loci;
  all_loci.Use(loci.Names());
  GenotypeTable table(loci.Count());
  std::vector<Slot> individuals;
  for (auto file = files.begin(); file != files.end(); ++file) {
    const bool is_known = std::any_of(files.begin(), file, [file](const CheckedFile& earlier) {
      return earlier.tokens->Digest() == file->tokens->Digest();
    });
    if (!is_known) {
      const auto loaded = Load(*file, all_loci, table);
      individuals.insert(individuals.end(), loaded.begin(), loaded.end());
    }
  }
  std::vector<LocusStatistics> all;
  for (std::uint32_t k = 0; k < loci.Count(); ++k) {
    const LocusIndex locus{k};
    all.push_back(StatisticsOf(table.Locus(locus), individuals));
    all.back().name = loci.Name(locus);
    all.back().in_use = loci.InUse(locus);
  }
  return all;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/allele_frequencies.h"

#include <map>

#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

AlleleFrequencies CountAlleles(const GenotypeTable& table, LocusIndex locus) {
  std::map<AlleleSize, std::size_t> counts;
  for (const LocusGenotype& genotype : table.Locus(locus)) {
    for (const AlleleSize allele : {genotype.allele1, genotype.allele2}) {
      if (allele != kUndefinedAllele) {
        ++counts[allele];
      }
    }
  }
  AlleleFrequencies frequencies;
  for (const auto& [size, copies] : counts) {
    frequencies.alleles.push_back({size, copies});
    frequencies.copies += copies;
  }
  return frequencies;
}

BarChart FrequencyChart(const AlleleFrequencies& frequencies, const QString& locus) {
  BarChart chart;
  chart.texts = {Tr("Allele frequencies at %1").arg(locus), Tr("allele size (bp)"), Tr("frequency"),
                 false};
  chart.series.name = Tr("frequency");
  for (std::size_t k = 0; k < frequencies.alleles.size(); ++k) {
    const std::uint32_t size = frequencies.alleles[k].size.Value();
    chart.positions.push_back(size);
    chart.categories.push_back(QString::number(size));
    chart.series.values.push_back({frequencies.Frequency(k), {}});
  }
  return chart;
}

DataTable FrequencyTable(const AlleleFrequencies& frequencies) {
  DataTable table{{Tr("size (bp)"), Tr("copies"), Tr("frequency")}, {}};
  for (std::size_t k = 0; k < frequencies.alleles.size(); ++k) {
    const AlleleCount& allele = frequencies.alleles[k];
    table.rows.push_back({QString::number(allele.size.Value()), QString::number(allele.copies),
                          ShortNumber(frequencies.Frequency(k))});
  }
  return table;
}

}  // namespace kaldo

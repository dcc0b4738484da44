// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "app/results/chart_data.h"
#include "genotypes/genotype_table.h"

namespace kaldo {

/// How often one allele size of a locus was found.
struct AlleleCount {
  AlleleSize size;
  std::size_t copies = 0;
};

/// The alleles of a locus over all individuals of a run, in ascending order of size.
struct AlleleFrequencies {
  std::vector<AlleleCount> alleles;
  std::size_t copies = 0;  ///< all gene copies that were typed

  double Frequency(std::size_t allele) const {
    return static_cast<double>(alleles[allele].copies) / static_cast<double>(copies);
  }
};

/// Counts the gene copies of parents and offspring. What was not typed is not counted, so that
/// neither missing loci nor separators change a frequency; the counts of the allele listing, which
/// treat them otherwise, are not used.
AlleleFrequencies CountAlleles(const GenotypeTable& table, LocusIndex locus);

/// The same as a chart and as a table.
BarChart FrequencyChart(const AlleleFrequencies& frequencies, const QString& locus);
DataTable FrequencyTable(const AlleleFrequencies& frequencies);

}  // namespace kaldo

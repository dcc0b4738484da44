// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "genotypes/loci_list.h"
#include "genotypes/record_cursor.h"
#include "genotypes/units.h"

namespace kaldo {

/// What the genotypes of some individuals show of a locus.
struct LocusStatistics {
  std::string name;
  bool in_use = true;

  std::map<AlleleSize, std::size_t> alleles;  ///< the gene copies of every size, undefined ones out
  std::optional<BasePairs> unit_distance;     ///< see UnitDistance; nothing below two sizes
  bool in_step = true;                        ///< see IsInStep

  std::size_t individuals = 0;
  std::size_t undefined = 0;  ///< of them, those that are not typed at the locus

  /// The share of typed individuals with two different alleles; nothing when nobody is typed.
  std::optional<double> observed_heterozygosity;

  /// The share to be expected at Hardy-Weinberg proportions, 2n / (2n - 1) * (1 - sum of p^2) over
  /// n typed individuals with the allele frequencies p: the unbiased gene diversity of M. Nei,
  /// Genetics 89 (1978) 583-590, doi:10.1093/genetics/89.3.583. Nothing when nobody is typed.
  std::optional<double> expected_heterozygosity;
};

/// A genotype file that has passed all checks.
struct CheckedFile {
  const TokenFile* tokens = nullptr;
  Separators separators = Separators::kNone;
};

/// The statistics of every locus of the list, in use or not, over all individuals of the files.
/// Files of the same contents count once: parents often serve as a sample, too.
std::vector<LocusStatistics> StatisticsOfLoci(std::span<const CheckedFile> files,
                                              const LociList& loci);

}  // namespace kaldo

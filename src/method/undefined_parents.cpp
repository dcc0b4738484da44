// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/undefined_parents.h"

#include <vector>

namespace kaldo {

void AddUndefinedAllele(std::span<const double> frequencies, TransmissionMatrix& matrix) {
  std::vector<double> row(matrix.Alleles());
  for (std::size_t read = 0; read < row.size(); ++read) {
    for (std::size_t carried = 0; carried < row.size(); ++carried) {
      row[read] += frequencies[carried] * matrix(carried, read);
    }
  }
  matrix.AddRow(row);
}

void IndexUndefinedParents(std::span<LocusGenotype> parents, std::size_t alleles) {
  const AlleleIndex undefined{static_cast<std::uint8_t>(alleles)};
  for (LocusGenotype& genotype : parents) {
    if (genotype.IsMissing()) {
      genotype.index1 = undefined;
      genotype.index2 = undefined;
    }
  }
}

}  // namespace kaldo

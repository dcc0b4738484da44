// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/transmission_scores.h"

#include <algorithm>
#include <array>

#include "genotypes/capacities.h"

namespace kaldo {

namespace {

constexpr double kMissingR = 1.0;
constexpr double kMissingJ = 0.5;

/// The chance of each parental allele, and of an undefined one, to be read as one offspring allele.
using Column = std::array<double, kMaxAlleles + 1>;

Column ColumnOf(const TransmissionMatrix& matrix, AlleleIndex offspring_allele) {
  Column column;  // only the first alleles are looked at
  for (std::size_t parental = 0; parental < matrix.Rows(); ++parental) {
    column[parental] = matrix(parental, offspring_allele.Value());
  }
  return column;
}

void ScoreLocus(std::span<const LocusGenotype> genotypes, const LocusGenotype& offspring,
                const TransmissionMatrix& matrix, std::span<double> scores_r,
                std::span<double> scores_j) {
  if (offspring.IsMissing()) {
    std::fill(scores_r.begin(), scores_r.end(), kMissingR);
    std::fill(scores_j.begin(), scores_j.end(), kMissingJ);
    return;
  }
  const Column to_r = ColumnOf(matrix, offspring.index1);
  const Column to_j = ColumnOf(matrix, offspring.index2);
  for (std::size_t parent = 0; parent < scores_r.size(); ++parent) {
    const std::size_t p1 = genotypes[parent].index1.Value();
    const std::size_t p2 = genotypes[parent].index2.Value();
    scores_r[parent] = to_r[p1] + to_r[p2];
    scores_j[parent] = to_j[p1] + to_j[p2];
  }
}

}  // namespace

void ComputeTransmissionScores(const GenotypeTable& table, Slot offspring,
                               std::span<const LocusIndex> loci,
                               std::span<const TransmissionMatrix> matrices,
                               TransmissionScores& scores) {
  for (std::size_t k = 0; k < loci.size(); ++k) {
    const LocusIndex locus = loci[k];
    ScoreLocus(table.Locus(locus), table.Genotype(locus, offspring), matrices[locus.Value()],
               scores.R(k), scores.J(k));
  }
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "genotypes/genotype_table.h"
#include "method/transmission_matrix.h"

namespace kaldo {

/// For one offspring, what every parent has to give at every locus: P_R for the offspring's first
/// allele and P_J for its second one,
///
///   P_R = M[p1][r] + M[p2][r]        P_J = M[p1][j] + M[p2][j],
///
/// with p1, p2 the parent's alleles, r, j the offspring's and M the transmission matrix of the
/// locus. That is twice the probability to pass on that allele: the factor one half of Mendel's
/// first law is left out, since it is the same for every parent. Where the offspring's locus is
/// missing, P_R = 1 and P_J = 0.5, so that the locus multiplies every likelihood by exactly 1 (1 x
/// 0.5 + 0.5 x 1). For parents with undefined loci see AddUndefinedAllele; separators stand in no
/// group.
///
/// The scores of one locus lie side by side over all parents, because the search walks over
/// parents.
class TransmissionScores {
 public:
  /// For so many loci of a run and so many parents, all scores 0.
  TransmissionScores(std::size_t loci, std::size_t parents)
      : loci_(loci), parents_(parents), scores_(2 * loci * parents) {}

  std::size_t Loci() const { return loci_; }

  /// P_R, and P_J, of every parent at the k-th locus of the run, by slot.
  std::span<const double> R(std::size_t k) const { return Row(2 * k); }
  std::span<const double> J(std::size_t k) const { return Row(2 * k + 1); }
  std::span<double> R(std::size_t k) { return Row(2 * k); }
  std::span<double> J(std::size_t k) { return Row(2 * k + 1); }

 private:
  std::span<const double> Row(std::size_t row) const {
    return std::span(scores_).subspan(row * parents_, parents_);
  }
  std::span<double> Row(std::size_t row) {
    return std::span(scores_).subspan(row * parents_, parents_);
  }

  std::size_t loci_;
  std::size_t parents_;
  std::vector<double> scores_;
};

/// Fills `scores` for one offspring: parents are the slots 0 to scores' parents - 1 of the indexed
/// table, `matrices` holds one matrix per locus of the names-of-loci file, `loci` those of the run.
/// `scores` must have been made for as many loci.
void ComputeTransmissionScores(const GenotypeTable& table, Slot offspring,
                               std::span<const LocusIndex> loci,
                               std::span<const TransmissionMatrix> matrices,
                               TransmissionScores& scores);

}  // namespace kaldo

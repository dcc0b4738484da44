// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "genotypes/units.h"
#include "method/error_model.h"

namespace kaldo {

/// One locus: the probability that an allele of a parent (row) is read as each allele in its
/// offspring (column). Rows and columns are AlleleIndex values, places in the sorted catalogue of
/// the locus over parents and offspring; n alleles make n x n cells. A row need not sum to 1.
class TransmissionMatrix {
 public:
  TransmissionMatrix() = default;
  explicit TransmissionMatrix(std::size_t alleles) { Resize(alleles); }

  /// Makes it a matrix of so many alleles, all cells 0. Memory once taken is kept.
  void Resize(std::size_t alleles) {
    alleles_ = alleles;
    rows_ = alleles;
    cells_.assign(alleles * alleles, 0.0);
  }

  /// Adds a row behind the others; see AddUndefinedAllele.
  void AddRow(std::span<const double> row) {
    ++rows_;
    cells_.insert(cells_.end(), row.begin(), row.end());
  }

  std::size_t Alleles() const { return alleles_; }

  /// As many as there are alleles, and one more where parents may be undefined.
  std::size_t Rows() const { return rows_; }

  double operator()(std::size_t parental, std::size_t offspring) const {
    return cells_[parental * alleles_ + offspring];
  }
  double& operator()(std::size_t parental, std::size_t offspring) {
    return cells_[parental * alleles_ + offspring];
  }

 private:
  std::size_t alleles_ = 0;
  std::size_t rows_ = 0;
  std::vector<double> cells_;
};

/// Builds the matrix of a locus from its sorted sizes and an error model that has been checked.
/// With n sizes and u the unit distance of the locus:
///
///  - No Error: 1 on the diagonal, 0 elsewhere (Mendel's first law; so also when no model is
///  chosen).
///  - Uniform: 1 - epsilon on the diagonal and epsilon / (n - 1) elsewhere, all other alleles
///  alike;
///    1 at a locus with a single allele, which nothing can be mistaken for.
///  - Non Uniform: focal on the diagonal; minus2, minus1, plus1, plus2 where the offspring's size
///  is
///    exactly 2 u or u shorter, u or 2 u longer than the parent's; 0 elsewhere, out of step
///    included. Mutation by single steps is the model of Ohta & Kimura 1973 (Genetical Research
///    22:201-204, doi:10.1017/S0016672300012994); double steps and different chances up and down
///    are this program's. Rows are not scaled to sum to 1 at the ends of the range, where an allele
///    that slipped out of it was not seen.
TransmissionMatrix BuildMatrix(const ErrorModel& model, std::span<const AlleleSize> sorted_sizes);

/// The same into a matrix that exists, so that simulations, which build one per iteration and
/// locus, need no new memory.
void BuildMatrix(const ErrorModel& model, std::span<const AlleleSize> sorted_sizes,
                 TransmissionMatrix& matrix);

}  // namespace kaldo

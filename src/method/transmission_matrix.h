// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "genotypes/units.h"
#include "method/error_model.h"

namespace kaldo {

/// One locus: the probability that an allele of a parent (row) is read as each allele in its
/// offspring (column), over the sorted catalogue of the locus.
class TransmissionMatrix {
 public:
  TransmissionMatrix() = default;
  explicit TransmissionMatrix(std::size_t alleles) { Resize(alleles); }

  /// Makes it a matrix of so many alleles, all cells 0. Memory once taken is kept.
  void Resize(std::size_t alleles) {
    alleles_ = alleles;
    cells_.assign(alleles * alleles, 0.0);
  }

  std::size_t Alleles() const { return alleles_; }

  double operator()(std::size_t parental, std::size_t offspring) const {
    return cells_[parental * alleles_ + offspring];
  }
  double& operator()(std::size_t parental, std::size_t offspring) {
    return cells_[parental * alleles_ + offspring];
  }

 private:
  std::size_t alleles_ = 0;
  std::vector<double> cells_;
};

/// Builds the matrix of a locus. No Error: 1 on the diagonal. Uniform: 1 - epsilon on the diagonal
/// and epsilon / (n - 1) beside it; 1 at a locus with a single allele. Non Uniform: the focal value
/// on the diagonal and the other four where two sizes differ by exactly one or two unit distances,
/// 0 elsewhere; rows are not scaled to sum to 1 at the ends of the range (this program's
/// convention: an allele that slipped out of the range was not seen).
TransmissionMatrix BuildMatrix(const ErrorModel& model, std::span<const AlleleSize> sorted_sizes);

/// The same into a matrix that exists.
void BuildMatrix(const ErrorModel& model, std::span<const AlleleSize> sorted_sizes,
                 TransmissionMatrix& matrix);

}  // namespace kaldo

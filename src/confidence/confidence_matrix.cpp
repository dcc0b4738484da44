// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/confidence_matrix.h"

#include <algorithm>

namespace kaldo {

namespace {

constexpr double kFreeReading = 0.01;

bool HasNoNegative(const TransmissionMatrix& matrix) {
  for (std::size_t i = 0; i < matrix.Alleles(); ++i) {
    for (std::size_t j = 0; j < matrix.Alleles(); ++j) {
      if (!(matrix(i, j) >= 0)) {
        return false;
      }
    }
  }
  return true;
}

}  // namespace

double FreeReading(const ErrorModel& model) {
  return model.kind == ErrorKind::kUniform && model.epsilon != 0 ? 0 : kFreeReading;
}

TransmissionMatrix ConfidenceMatrix(const TransmissionMatrix& matrix, double lambda) {
  const std::size_t alleles = matrix.Alleles();
  TransmissionMatrix mixed(alleles);
  for (std::size_t i = 0; i < alleles; ++i) {
    for (std::size_t j = 0; j < alleles; ++j) {
      mixed(i, j) =
          alleles == 1 ? 1.0 : (1 - lambda) * matrix(i, j) + lambda / static_cast<double>(alleles);
    }
  }
  return mixed;
}

std::vector<TransmissionMatrix> ConfidenceMatrices(const ErrorModel& model,
                                                   const AlleleCatalogues& catalogues) {
  std::vector<TransmissionMatrix> matrices;
  matrices.reserve(catalogues.size());
  for (const AlleleCatalogue& catalogue : catalogues) {
    matrices.push_back(ConfidenceMatrix(BuildMatrix(model, catalogue.Sizes()), FreeReading(model)));
  }
  return matrices;
}

bool AreProbabilities(std::span<const TransmissionMatrix> matrices) {
  return std::all_of(matrices.begin(), matrices.end(), HasNoNegative);
}

}  // namespace kaldo

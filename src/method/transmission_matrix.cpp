// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/transmission_matrix.h"

#include "genotypes/unit_distance.h"

namespace kaldo {

namespace {

double UniformCell(const ErrorModel& model, std::size_t alleles, bool diagonal) {
  if (alleles == 1) {
    return 1.0;
  }
  return diagonal ? 1.0 - model.epsilon : model.epsilon / (static_cast<double>(alleles) - 1.0);
}

double NonUniformCell(const ErrorModel& model, BasePairs unit, AlleleSize parental,
                      AlleleSize offspring) {
  const std::int32_t change =
      static_cast<std::int32_t>(offspring.Value()) - static_cast<std::int32_t>(parental.Value());
  if (change == 0) {
    return model.focal;
  }
  if (change == -unit.Value()) {
    return model.minus1;
  }
  if (change == -2 * unit.Value()) {
    return model.minus2;
  }
  if (change == unit.Value()) {
    return model.plus1;
  }
  return change == 2 * unit.Value() ? model.plus2 : 0.0;
}

}  // namespace

TransmissionMatrix BuildMatrix(const ErrorModel& model, std::span<const AlleleSize> sorted_sizes) {
  TransmissionMatrix matrix;
  BuildMatrix(model, sorted_sizes, matrix);
  return matrix;
}

void BuildMatrix(const ErrorModel& model, std::span<const AlleleSize> sorted_sizes,
                 TransmissionMatrix& matrix) {
  const std::size_t alleles = sorted_sizes.size();
  const BasePairs unit = UnitDistance(sorted_sizes);
  matrix.Resize(alleles);
  for (std::size_t i = 0; i < alleles; ++i) {
    for (std::size_t j = 0; j < alleles; ++j) {
      switch (model.kind) {
        case ErrorKind::kNoError:
        case ErrorKind::kNotChosen:
          matrix(i, j) = i == j ? 1.0 : 0.0;
          break;
        case ErrorKind::kUniform:
          matrix(i, j) = UniformCell(model, alleles, i == j);
          break;
        case ErrorKind::kNonUniform:
          matrix(i, j) = NonUniformCell(model, unit, sorted_sizes[i], sorted_sizes[j]);
          break;
      }
    }
  }
}

}  // namespace kaldo

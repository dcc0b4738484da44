// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/row_frequency.h"

#include "simulation/figures/weighted.h"

namespace kaldo {

namespace {

/// The count of the row with the same sides, 0 where the class has none.
std::int32_t CountOfSides(const OriginClass& origin, const ClassCounts& counts,
                          const OriginRow& wanted) {
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    if (origin.rows[row].allocated == wanted.allocated &&
        origin.rows[row].correct == wanted.correct) {
      return counts.rows.at(row);
    }
  }
  return 0;
}

}  // namespace

double RowFrequency(const OriginClass& origin, const ClassCounts& counts, const OriginRow& row) {
  return counts.Share(CountOfSides(origin, counts, row));
}

double GlobalRowFrequency(const SimulationDesign& design, std::span<const double> weights,
                          const IterationCounts& counts, const OriginRow& row) {
  if (design.global_rows == GlobalRows::kWeighted) {
    std::vector<double> of_classes;
    for (std::size_t k = 0; k < design.classes.size(); ++k) {
      of_classes.push_back(RowFrequency(design.classes[k], counts.at(k), row));
    }
    return Weighted(weights, of_classes);
  }
  std::int32_t count = 0;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    count += CountOfSides(design.classes[k], counts.at(k), row);
  }
  return Ratio(count, PseudoOffspring(counts));
}

}  // namespace kaldo

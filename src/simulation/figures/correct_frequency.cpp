// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/correct_frequency.h"

#include "simulation/figures/weighted.h"

namespace kaldo {

namespace {

/// Twice the number of pseudo-offspring that count as right.
std::int32_t RightSides(const OriginClass& origin, const ClassCounts& counts) {
  std::int32_t sum = 0;
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    sum += origin.rows[row].weight * counts.rows.at(row);
  }
  return sum;
}

double HalfShare(std::int32_t right_sides, std::int32_t size) {
  return size == 0 ? 0.0 : static_cast<double>(right_sides) / 2 / static_cast<double>(size);
}

}  // namespace

double CorrectFrequency(const OriginClass& origin, const ClassCounts& counts) {
  return HalfShare(RightSides(origin, counts), counts.size);
}

double GlobalCorrectFrequency(const SimulationDesign& design, std::span<const double> weights,
                              const IterationCounts& counts) {
  if (design.global_rows == GlobalRows::kWeighted) {
    std::vector<double> of_classes;
    for (std::size_t k = 0; k < design.classes.size(); ++k) {
      of_classes.push_back(CorrectFrequency(design.classes[k], counts.at(k)));
    }
    return Weighted(weights, of_classes);
  }
  std::int32_t right_sides = 0;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    right_sides += RightSides(design.classes[k], counts.at(k));
  }
  return HalfShare(right_sides, PseudoOffspring(counts));
}

}  // namespace kaldo

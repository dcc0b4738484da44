// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reading_table.h"

#include <algorithm>

#include "simulation/off_ladder.h"

namespace kaldo {

namespace {

/// The first step whose draw lies above `sum`, which is above 0.
std::uint32_t FirstStepAbove(double sum, const UnitDraw& draw) {
  const double steps = draw.Steps();
  auto step = static_cast<std::uint32_t>(std::min(sum * steps, steps));
  // The product may be rounded to the wrong side of a step.
  while (step < draw.Steps() && draw.At(step) <= sum) {
    ++step;
  }
  while (step > 0 && draw.At(step - 1) > sum) {
    --step;
  }
  return step;
}

}  // namespace

void ReadingTable::Build(const TransmissionMatrix& matrix, const UnitDraw& draw) {
  steps_ = draw.Steps();
  readings_.resize(matrix.Rows() * steps_);
  std::uint8_t* row = readings_.data();
  for (std::size_t parental = 0; parental < matrix.Rows(); ++parental, row += steps_) {
    std::uint32_t done = 0;
    double sum = 0;
    for (std::size_t received = 0; received < matrix.Alleles() && done < steps_; ++received) {
      // The same running sum as in Transmit().
      sum += matrix(parental, received);
      const std::uint32_t end = sum > 0 ? FirstStepAbove(sum, draw) : 0;
      if (end > done) {
        std::fill(row + done, row + end, static_cast<std::uint8_t>(received));
        done = end;
      }
    }
    const AlleleIndex own{static_cast<std::uint8_t>(parental)};
    std::fill(row + done, row + steps_, ReadBehindRow(matrix, own).Value());
  }
}

}  // namespace kaldo

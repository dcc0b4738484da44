// SPDX-License-Identifier: GPL-3.0-or-later
// The written-out readings against the walk along the matrix.
#include "simulation/reading_table.h"

#include <array>
#include <random>

#include <gtest/gtest.h>

#include "method/undefined_parents.h"
#include "simulation/pseudo_offspring.h"

namespace kaldo {
namespace {

TEST(ReadingTable, ReadsWhatTransmitReadsForEveryDraw) {
  std::mt19937 random(20260301);
  std::uniform_real_distribution<> share(0, 1);
  ReadingTable table;
  for (int round = 0; round < 600; ++round) {
    const UnitDraw draw(static_cast<std::size_t>(1 + round % 4));
    const std::size_t alleles = 1 + random() % 12;
    TransmissionMatrix matrix(alleles);
    for (std::size_t i = 0; i < alleles; ++i) {
      for (std::size_t j = 0; j < alleles; ++j) {
        // Sums that lie on the grid of the draws, beside it, at 0, below 0 and beyond 1.
        const std::array<double, 5> values = {0, draw.At(static_cast<std::uint32_t>(random() % 5)),
                                              share(random) / 4, 0.1, -0.05};
        matrix(i, j) = values[random() % (round % 3 == 0 ? 5 : 4)];
      }
    }
    if (round % 2 == 0) {
      AddUndefinedAllele(std::vector<double>(alleles, 1.0 / static_cast<double>(alleles)), matrix);
    }
    table.Build(matrix, draw);
    for (std::uint32_t step = 0; step < draw.Steps(); ++step) {
      for (std::size_t row = 0; row < matrix.Rows(); ++row) {
        const AlleleIndex parental{static_cast<std::uint8_t>(row)};
        ASSERT_EQ(table.Read(parental, step), Transmit(matrix, parental, draw.At(step)))
            << round << ' ' << step;
      }
    }
  }
}

}  // namespace
}  // namespace kaldo

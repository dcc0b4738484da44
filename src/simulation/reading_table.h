// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "method/transmission_matrix.h"
#include "simulation/random_numbers.h"

namespace kaldo {

/// What is read in an offspring at one locus, for each allele that a parent transmits and each
/// number that can be drawn: Transmit() written out, so that a reading is one look instead of a
/// walk along a row of the matrix.
class ReadingTable {
 public:
  /// Memory of all tables of an iteration. Larger ones are slower than walking: they would not stay
  /// in a near cache.
  static constexpr std::size_t kMostBytes = std::size_t{384} << 10U;

  /// Writes the table out. Memory once taken is kept.
  void Build(const TransmissionMatrix& matrix, const UnitDraw& draw);

  /// Makes it an empty table, from which nothing can be read.
  void Clear() { readings_.clear(); }
  bool IsEmpty() const { return readings_.empty(); }

  /// The allele that is read for a step of the draw.
  AlleleIndex Read(AlleleIndex parental, std::uint64_t step) const {
    return AlleleIndex{readings_[parental.Value() * steps_ + step]};
  }

 private:
  std::size_t steps_ = 0;
  std::vector<std::uint8_t> readings_;  ///< by transmitted allele and step
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kaldo {

/// The size of an allele as a table of another program tells it, in base pairs or repeats; 0 where
/// it is undefined.
using ForeignAllele = std::uint16_t;

/// What a cell says of one allele.
struct AlleleReading {
  ForeignAllele size = 0;
  bool was_decimal = false;  ///< written as 124.0
  std::string fault = {};    ///< what is wrong with the cell; empty where nothing is
};

/// What a cell says of both alleles of a locus.
struct GenotypeReading {
  ForeignAllele first = 0;
  ForeignAllele second = 0;
  bool was_decimal = false;
  std::size_t digits = 0;  ///< of each allele where they stand side by side; 0 elsewhere
  std::string fault = {};
};

/// True for the whole cell of what stands for "not typed": nothing, 0 however written, -1, -9, NA,
/// N/A, ".", "?", "-", and what the user says in addition. The number counts, not its digits: 120
/// is an allele.
bool IsMissingCell(std::string_view cell, const std::optional<std::string>& missing_code);

/// One allele: 1 to 4 digits. Spreadsheets and statistics programs write 124 as 124.0, which is the
/// same; any other fraction is a size that nobody has binned yet, and only the laboratory can.
AlleleReading ReadAllele(std::string_view cell, const std::optional<std::string>& missing_code);

/// Both alleles: 124/128, 124:128, 124|128, or side by side with the same number of digits, 124128.
GenotypeReading ReadGenotype(std::string_view cell, const std::optional<std::string>& missing_code);

}  // namespace kaldo

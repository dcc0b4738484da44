// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/allele_cell.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "base/number_text.h"
#include "base/problem.h"
#include "genotypes/capacities.h"
#include "interchange/import/foreign_text.h"

namespace kaldo {

namespace {

bool AreDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(),
                                      [](char sign) { return sign >= '0' && sign <= '9'; });
}

bool AreLetters(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char sign) {
    return (sign >= 'A' && sign <= 'Z') || (sign >= 'a' && sign <= 'z');
  });
}

/// A number with a decimal point or comma, taken apart.
struct Decimal {
  std::string_view whole;
  std::string_view fraction;

  bool IsWhole() const { return fraction.find_first_not_of('0') == std::string_view::npos; }
};

std::optional<Decimal> DecimalIn(std::string_view cell) {
  const std::size_t point = cell.find_first_of(".,");
  if (point == std::string_view::npos) {
    return std::nullopt;
  }
  const Decimal decimal{cell.substr(0, point), cell.substr(point + 1)};
  return AreDigits(decimal.whole) && AreDigits(decimal.fraction) ? std::optional(decimal)
                                                                 : std::nullopt;
}

std::string FaultOf(std::string_view cell) {
  if (const auto decimal = DecimalIn(cell); decimal && !decimal->IsWhole()) {
    return Quoted(cell) + " is a raw size; bin it to whole base pairs first";
  }
  if (AreLetters(cell)) {
    return Quoted(cell) +
           " is no size: alleles are whole base pairs; single bases (SNPs) are not read";
  }
  return fmt::format(
      "{} is no allele: a size has 1 to {} digits and no mark; where it stands for a missing one, "
      "say so with --missing",
      Quoted(cell), kMaxAlleleDigits);
}

ForeignAllele SizeOf(std::string_view digits) {
  return static_cast<ForeignAllele>(ParseInteger(digits).value_or(0));
}

/// What is left of a number of which the fraction is zeros only.
std::string_view WithoutZeroFraction(std::string_view cell) {
  const auto decimal = DecimalIn(cell);
  return decimal && decimal->IsWhole() ? decimal->whole : cell;
}

std::string FaultOfSideBySide(std::string_view digits) {
  if (digits.size() > 2 * kMaxAlleleDigits) {
    return fmt::format("{} has {} digits; two alleles have at most {}", Quoted(digits),
                       digits.size(), 2 * kMaxAlleleDigits);
  }
  return fmt::format(
      "{} has {} digits: it is one allele alone, or two of which a spreadsheet took the leading "
      "zero; write both alleles, as in 96/104",
      Quoted(digits), digits.size());
}

}  // namespace

bool IsMissingCell(std::string_view cell, const std::optional<std::string>& missing_code) {
  constexpr std::array<std::string_view, 8> kSigns = {"", "na", "n/a", ".", "?", "-", "-1", "-9"};
  cell = Trimmed(cell);
  if (missing_code && cell == Trimmed(*missing_code)) {
    return true;
  }
  const bool is_negative = cell.starts_with('-');
  const std::string_view number = WithoutZeroFraction(is_negative ? cell.substr(1) : cell);
  if (AreDigits(number) && number.find_first_not_of('0') == std::string_view::npos) {
    return true;
  }
  const std::string word = is_negative ? fmt::format("-{}", number) : Lower(cell);
  return std::find(kSigns.begin(), kSigns.end(), word) != kSigns.end();
}

AlleleReading ReadAllele(std::string_view cell, const std::optional<std::string>& missing_code) {
  cell = Trimmed(cell);
  if (IsMissingCell(cell, missing_code)) {
    return {};
  }
  const std::string_view number = WithoutZeroFraction(cell);
  if (!AreDigits(number) || number.size() > kMaxAlleleDigits) {
    return {.fault = FaultOf(cell)};
  }
  return {.size = SizeOf(number), .was_decimal = number.size() != cell.size()};
}

GenotypeReading ReadGenotype(std::string_view cell,
                             const std::optional<std::string>& missing_code) {
  cell = Trimmed(cell);
  if (IsMissingCell(cell, missing_code)) {
    return {};
  }
  if (const std::size_t sign = cell.find_first_of("/:|"); sign != std::string_view::npos) {
    const auto first = ReadAllele(cell.substr(0, sign), missing_code);
    const auto second = ReadAllele(cell.substr(sign + 1), missing_code);
    return {.first = first.size,
            .second = second.size,
            .was_decimal = first.was_decimal || second.was_decimal,
            .fault = first.fault.empty() ? second.fault : first.fault};
  }
  const std::string_view digits = WithoutZeroFraction(cell);
  if (!AreDigits(digits)) {
    return {.fault = FaultOf(cell)};
  }
  if (digits.size() % 2 != 0 || digits.size() > 2 * kMaxAlleleDigits) {
    return {.fault = FaultOfSideBySide(digits)};
  }
  const std::size_t half = digits.size() / 2;
  return {.first = SizeOf(digits.substr(0, half)),
          .second = SizeOf(digits.substr(half)),
          .was_decimal = digits.size() != cell.size(),
          .digits = half};
}

}  // namespace kaldo

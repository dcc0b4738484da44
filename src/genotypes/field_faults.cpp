// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/field_faults.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "genotypes/capacities.h"
#include "genotypes/name_rules.h"

namespace kaldo {

namespace {

constexpr std::size_t kLongestEvenField = 1000;

/// Spreadsheets drop the zeros before a number. That it happened shows where the first record has
/// one digit more.
std::string LostZeroText(std::string_view field, std::span<const Token> tokens,
                         RecordLayout layout) {
  RecordCursor cursor(tokens, layout);
  while (!cursor.AtEnd() && cursor.Fields().empty()) {
    cursor.Next();
  }
  const auto fields = cursor.Fields();
  const bool one_less = std::any_of(fields.begin(), fields.end(), [field](const Token& other) {
    return other.text.size() == field.size() + 1 && IsAllDigits(other.text);
  });
  return one_less && IsAllDigits(field)
             ? fmt::format("; is it \"0{}\" without its leading zero?", field)
             : "";
}

}  // namespace

bool IsAllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char character) { return character >= '0' && character <= '9'; });
}

ZeroHalves ZeroHalvesOf(std::string_view field) {
  const std::size_t half = field.size() / 2;
  const auto zeros = [half](std::string_view part) {
    return static_cast<std::size_t>(std::count(part.begin(), part.end(), '0')) == half;
  };
  return {zeros(field.substr(0, half)), zeros(field.substr(half))};
}

bool IsEvenField(std::string_view field) {
  return field.size() % 2 == 0 && field.size() <= kLongestEvenField;
}

bool HoldsForbidden(std::string_view field, UndefinedAlleles allowed) {
  const auto [first, second] = ZeroHalvesOf(field);
  return allowed == UndefinedAlleles::kNone ? first || second : first != second;
}

std::string OddFieldText(std::string_view field, std::span<const Token> tokens,
                         RecordLayout layout) {
  return fmt::format("{} has {}; both alleles need the same number of digits{}", Quoted(field),
                     Counted(field.size(), "character", "characters"),
                     LostZeroText(field, tokens, layout));
}

std::string ForbiddenText(std::string_view field) {
  return fmt::format("{} holds an undefined allele", Quoted(field));
}

std::optional<Problem> FaultOfField(std::string_view field, std::size_t digits_per_field) {
  if (!IsAllDigits(field)) {
    return Problem{.kind = ProblemKind::kFieldNotDigits,
                   .found = fmt::format("{} should be both allele sizes as digits side by side",
                                        Quoted(field))};
  }
  if (field.size() != digits_per_field) {
    std::string advice;
    if (field.size() < digits_per_field) {
      advice = "; spreadsheets drop leading zeros: write them again or correct the field";
    }
    return Problem{
        .kind = ProblemKind::kFieldOfOtherWidth,
        .found = fmt::format("{} has {}, the first parents file uses {}{}", Quoted(field),
                             Counted(field.size(), "digit", "digits"), digits_per_field, advice)};
  }
  if (field.size() > 2 * kMaxAlleleDigits || field.size() % 2 != 0) {
    return Problem{
        .kind = ProblemKind::kAlleleTooLong,
        .subject = fmt::format("{}", kMaxAlleleDigits),
        .found = fmt::format("{} has {} digits for both alleles", Quoted(field), field.size())};
  }
  return std::nullopt;
}

std::optional<Problem> FaultOfRecordName(std::string_view name, bool is_separator) {
  if (!is_separator && name.size() > kMaxNameLength) {
    return Problem{.kind = ProblemKind::kNameTooLong,
                   .subject = fmt::format("{}", kMaxNameLength),
                   .found = fmt::format("{} has {} characters", Quoted(name), name.size())};
  }
  return FaultOfName(name);
}

std::optional<Problem> FaultOfParentName(std::string_view name) {
  if (!IsSignOfNoParent(name)) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kParentNamedNone, .found = "give the parent another name"};
}

}  // namespace kaldo

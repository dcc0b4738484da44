// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/record_checks.h"

#include <algorithm>

#include <fmt/format.h>

#include "genotypes/capacities.h"
#include "genotypes/layout_hints.h"
#include "genotypes/lines.h"
#include "genotypes/name_rules.h"

namespace kaldo {

namespace {

bool IsOneRecord(Line line, RecordLayout layout) {
  return layout.IsSeparator(line.front().text) ? line.size() == 1
                                               : line.size() == layout.number_of_loci + 1;
}

std::string FieldCountText(Line line, RecordLayout layout) {
  std::string text = fmt::format("fields after the name: {}, loci named: {}", line.size() - 1,
                                 layout.number_of_loci);
  if (IsSeparatorName(line.front().text) && layout.separators == Separators::kNone) {
    text += "; separators are read in parents files only";
  } else if (layout.IsSeparator(line.front().text)) {
    text = "a separator stands alone on its line";
  }
  return text;
}

Problem WrongFieldCount(const TokenFile& file, RecordLayout layout) {
  if (const auto hint = FindLayoutHint(file, layout)) {
    return {.kind = ProblemKind::kWrongFieldCount,
            .file = file.Path(),
            .line = hint->line,
            .found = hint->found};
  }
  if (auto problem = FindMisshapenRecord(file, layout, ProblemKind::kWrongFieldCount)) {
    return *problem;
  }
  RecordCursor cursor(file.Tokens(), layout);
  do {
    cursor.Next();
  } while (!cursor.AtEnd());
  return {.kind = ProblemKind::kWrongFieldCount,
          .file = file.Path(),
          .line = cursor.Name().line,
          .record = cursor.Record(),
          .individual = std::string(cursor.Name().text),
          .found = fmt::format("the file ends after {} of its {} fields", cursor.Fields().size(),
                               layout.number_of_loci)};
}

/// What is wrong with one genotype field by itself, without its place.
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
    return Problem{.kind = ProblemKind::kFieldOfOtherWidth,
                   .found = fmt::format("{} has {} digits, the first parents file uses {}{}",
                                        Quoted(field), field.size(), digits_per_field, advice)};
  }
  if (field.size() > 2 * kMaxAlleleDigits || field.size() % 2 != 0) {
    return Problem{
        .kind = ProblemKind::kAlleleTooLong,
        .subject = fmt::format("{}", kMaxAlleleDigits),
        .found = fmt::format("{} has {} digits for both alleles", Quoted(field), field.size())};
  }
  return std::nullopt;
}

/// What is wrong with a name by itself, without its place. No report tells the name of a separator,
/// which may be of any length.
std::optional<Problem> FaultOfRecordName(std::string_view name, bool is_separator) {
  if (!is_separator && name.size() > kMaxNameLength) {
    return Problem{.kind = ProblemKind::kNameTooLong,
                   .subject = fmt::format("{}", kMaxNameLength),
                   .found = fmt::format("{} has {} characters", Quoted(name), name.size())};
  }
  return FaultOfName(name);
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

std::optional<Problem> FindMisshapenRecord(const TokenFile& file, RecordLayout layout,
                                           ProblemKind kind) {
  const auto lines = LinesOf(file.Tokens());
  const auto regular = std::count_if(lines.begin(), lines.end(),
                                     [layout](Line line) { return IsOneRecord(line, layout); });
  if (2 * static_cast<std::size_t>(regular) <= lines.size()) {
    return std::nullopt;
  }
  const auto odd_one = std::find_if_not(lines.begin(), lines.end(),
                                        [layout](Line line) { return IsOneRecord(line, layout); });
  if (odd_one == lines.end()) {
    return std::nullopt;
  }
  return Problem{.kind = kind,
                 .file = file.Path(),
                 .line = odd_one->front().line,
                 .record = static_cast<std::uint32_t>(odd_one - lines.begin()) + 1,
                 .individual = std::string(odd_one->front().text),
                 .found = FieldCountText(*odd_one, layout)};
}

std::size_t DigitsPerField(const TokenFile& first_parents_file, RecordLayout layout) {
  RecordCursor cursor(first_parents_file.Tokens(), layout);
  while (!cursor.AtEnd()) {
    cursor.Next();
    if (!cursor.IsSeparator()) {
      return cursor.Fields().empty() ? 0 : cursor.Fields().front().text.size();
    }
  }
  return 0;
}

std::optional<Problem> CheckRecords(const TokenFile& file, RecordLayout layout,
                                    const LociList& loci, std::size_t digits_per_field) {
  const TokenCounts counts = CountTokens(file.Tokens(), layout);
  if ((counts.tokens - counts.separators) % (layout.number_of_loci + 1) != 0) {
    return WrongFieldCount(file, layout);
  }
  RecordCursor cursor(file.Tokens(), layout);
  while (!cursor.AtEnd()) {
    cursor.Next();
    const Token& name = cursor.Name();
    for (std::size_t locus = 0; locus < cursor.Fields().size(); ++locus) {
      const Token& field = cursor.Fields()[locus];
      auto fault = FaultOfField(field.text, digits_per_field);
      if (!fault) {
        continue;
      }
      // A name where a genotype should be means that an earlier record lost or gained a field.
      if (fault->kind == ProblemKind::kFieldNotDigits) {
        if (const auto hint = FindLayoutHint(file, layout)) {
          return Problem{.kind = ProblemKind::kFieldNotDigits,
                         .file = file.Path(),
                         .line = hint->line,
                         .found = hint->found};
        }
        if (auto torn = FindMisshapenRecord(file, layout, ProblemKind::kWrongFieldCount)) {
          return torn;
        }
      }
      fault->file = file.Path();
      fault->line = field.line;
      fault->record = cursor.Record();
      fault->individual = name.text;
      fault->locus = loci.Names()[locus];
      return fault;
    }
    if (auto fault = FaultOfRecordName(name.text, cursor.IsSeparator())) {
      fault->file = file.Path();
      fault->line = name.line;
      fault->record = cursor.Record();
      fault->individual = name.text;
      return fault;
    }
  }
  return std::nullopt;
}

std::size_t CountIndividuals(const TokenFile& file, RecordLayout layout) {
  const TokenCounts counts = CountTokens(file.Tokens(), layout);
  return counts.records - counts.separators;
}

}  // namespace kaldo

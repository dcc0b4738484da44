// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/record_checks.h"

#include <algorithm>

#include <fmt/format.h>

#include "genotypes/field_faults.h"
#include "genotypes/layout_hints.h"
#include "genotypes/lines.h"

namespace kaldo {

namespace {

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

}  // namespace

bool IsOneRecord(Line line, RecordLayout layout) {
  return layout.IsSeparator(line.front().text) ? line.size() == 1
                                               : line.size() == layout.number_of_loci + 1;
}

bool HasRecordPerLine(std::span<const Line> lines, RecordLayout layout) {
  const auto regular = std::count_if(lines.begin(), lines.end(),
                                     [layout](Line line) { return IsOneRecord(line, layout); });
  return 2 * static_cast<std::size_t>(regular) > lines.size();
}

std::vector<Problem> FindMisshapenRecords(const TokenFile& file, RecordLayout layout,
                                          ProblemKind kind, std::size_t most) {
  std::vector<Problem> misshapen;
  const auto lines = LinesOf(file.Tokens());
  if (!HasRecordPerLine(lines, layout)) {
    return misshapen;
  }
  for (std::size_t k = 0; k < lines.size() && misshapen.size() < most; ++k) {
    if (!IsOneRecord(lines[k], layout)) {
      misshapen.push_back({.kind = kind,
                           .file = file.Path(),
                           .line = lines[k].front().line,
                           .record = static_cast<std::uint32_t>(k) + 1,
                           .individual = std::string(lines[k].front().text),
                           .found = FieldCountText(lines[k], layout)});
    }
  }
  return misshapen;
}

std::optional<Problem> FindMisshapenRecord(const TokenFile& file, RecordLayout layout,
                                           ProblemKind kind) {
  auto misshapen = FindMisshapenRecords(file, layout, kind, 1);
  return misshapen.empty() ? std::nullopt : std::optional(std::move(misshapen.front()));
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

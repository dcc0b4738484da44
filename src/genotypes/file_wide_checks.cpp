// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/file_wide_checks.h"

#include <fmt/format.h>

#include "genotypes/field_faults.h"
#include "genotypes/layout_hints.h"
#include "genotypes/record_checks.h"

namespace kaldo {

namespace {

/// A field of the file that breaks a rule, and the record in which it stands.
struct FieldPlace {
  Token field;
  Token name;
  std::uint32_t record = 0;
  std::size_t locus = 0;
};

/// Walks over as many records as the counts allow. Fields missing at the end count as empty ones.
template <typename Visit>
void ForEachField(std::span<const Token> tokens, RecordLayout layout, std::size_t records,
                  Visit visit) {
  RecordCursor cursor(tokens, layout);
  for (std::size_t record = 0; record < records; ++record) {
    cursor.Next();
    const std::size_t fields = cursor.IsSeparator() ? 0 : layout.number_of_loci;
    for (std::size_t locus = 0; locus < fields; ++locus) {
      const Token field = locus < cursor.Fields().size() ? cursor.Fields()[locus] : Token{};
      visit(FieldPlace{field, cursor.Name(), cursor.Record(), locus});
    }
  }
}

Problem ProblemAt(const FieldPlace& place, const FileWideCheck& check, const LociList& loci,
                  ProblemKind kind, std::string found) {
  return {.kind = kind,
          .file = check.file->Path(),
          .line = place.field.line,
          .record = place.record,
          .individual = std::string(place.name.text),
          .locus = loci.Names()[place.locus],
          .found = std::move(found)};
}

Problem OddDigits(const FileWideCheck& check, const LociList& loci, RecordLayout layout,
                  const std::optional<FieldPlace>& odd, const TokenCounts& counts) {
  const auto tokens = check.file->Tokens();
  if (const auto hint = FindLayoutHint(*check.file, layout)) {
    return {.kind = check.odd_digits,
            .file = check.file->Path(),
            .line = hint->line,
            .found = hint->found};
  }
  const bool torn = (counts.tokens - counts.separators) % (layout.number_of_loci + 1) != 0;
  if (torn || !odd || !IsAllDigits(odd->field.text)) {
    if (auto problem = FindMisshapenRecord(*check.file, layout, check.odd_digits)) {
      return *problem;
    }
  }
  if (odd) {
    if (IsEvenField(odd->field.text)) {
      return ProblemAt(*odd, check, loci, check.odd_digits,
                       fmt::format("{} stands where a genotype should", Quoted(odd->field.text)));
    }
    return ProblemAt(*odd, check, loci, check.odd_digits,
                     OddFieldText(odd->field.text, tokens, layout));
  }
  return {.kind = check.odd_digits,
          .file = check.file->Path(),
          .found = fmt::format("{} words do not make whole records of a name and {} fields",
                               tokens.size(), layout.number_of_loci)};
}

}  // namespace

std::optional<Problem> CheckFileWide(const FileWideCheck& check, const LociList& loci) {
  const auto tokens = check.file->Tokens();
  const RecordLayout layout{loci.Count(), check.separators};
  const TokenCounts counts = CountTokens(tokens, layout);

  std::size_t even_fields = 0;
  std::optional<FieldPlace> first_odd;
  std::optional<FieldPlace> first_no_genotype;
  std::optional<FieldPlace> first_undefined;
  ForEachField(tokens, layout, counts.records, [&](const FieldPlace& place) {
    if (IsEvenField(place.field.text)) {
      ++even_fields;
    } else if (!first_odd) {
      first_odd = place;
    }
    if (!first_no_genotype && !IsAllDigits(place.field.text)) {
      first_no_genotype = place;
    }
    if (!first_undefined && HoldsForbidden(place.field.text, check.undefined_alleles)) {
      first_undefined = place;
    }
  });
  const std::size_t expected =
      ((counts.tokens - counts.separators) * loci.Count()) / (loci.Count() + 1);
  if (even_fields != expected) {
    return OddDigits(check, loci, layout, first_odd ? first_odd : first_no_genotype, counts);
  }
  if (first_undefined) {
    return ProblemAt(*first_undefined, check, loci, check.undefined,
                     ForbiddenText(first_undefined->field.text));
  }
  return std::nullopt;
}

std::optional<Problem> CheckFilesWide(std::span<const FileWideCheck> checks, const LociList& loci,
                                      std::optional<Problem> earlier) {
  for (const FileWideCheck& check : checks) {
    auto problem = CheckFileWide(check, loci);
    if (!problem) {
      continue;
    }
    if (check.odd_digits_ends_checks && problem->kind == check.odd_digits) {
      return problem;
    }
    earlier = std::move(problem);
  }
  return earlier;
}

}  // namespace kaldo

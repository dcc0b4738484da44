// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/file_summary.h"

#include <unordered_map>

#include "genotypes/capacities.h"
#include "genotypes/record_checks.h"

namespace kaldo {

namespace {

constexpr std::size_t kFirstFew = 3;
constexpr std::size_t kFewNames = 3;

void Note(Sighting& sighting, const Token& word, std::string_view individual) {
  if (sighting.count == 0) {
    sighting.first = {std::string(word.text), std::string(individual), word.line};
  }
  ++sighting.count;
}

void SummarizeField(const Token& field, std::string_view individual, FileSummary& summary) {
  if (!IsAllDigits(field.text)) {
    Note(summary.not_digits, field, individual);
    return;
  }
  Note(summary.digits[field.text.size()], field, individual);
  if (field.text.size() % 2 != 0) {
    return;
  }
  const auto [first, second] = ZeroHalvesOf(field.text);
  if (first && second) {
    Note(summary.missing, field, individual);
  } else if (first || second) {
    Note(summary.half_defined, field, individual);
  }
}

void KeepPreview(const RecordCursor& record, FileSummary& summary) {
  if (summary.first_few.size() == kFirstFew) {
    return;
  }
  RecordPreview preview{std::string(record.Name().text), {}};
  for (const Token& field : record.Fields()) {
    preview.fields.emplace_back(field.text);
  }
  summary.first_few.push_back(std::move(preview));
}

void SummarizeRecords(std::span<const Token> tokens, RecordLayout layout, FileSummary& summary) {
  std::unordered_map<std::string_view, std::size_t> bearers;
  std::size_t in_group = 0;
  const auto end_group = [&] {
    summary.empty_groups += in_group == 0 ? 1 : 0;
    in_group = 0;
  };
  RecordCursor record(tokens, layout);
  while (!record.AtEnd()) {
    record.Next();
    KeepPreview(record, summary);
    if (record.IsSeparator()) {
      ++summary.separators;
      end_group();
      continue;
    }
    ++summary.individuals;
    ++in_group;
    const std::string_view name = record.Name().text;
    if (name.size() > kMaxNameLength) {
      Note(summary.long_names, record.Name(), name);
    }
    if (++bearers[name] == 2 && ++summary.repeated_names <= kFewNames) {
      summary.name_twice.emplace_back(name);
    }
    for (const Token& field : record.Fields()) {
      SummarizeField(field, name, summary);
    }
  }
  end_group();
}

}  // namespace

FileSummary Summarize(const TokenFile& file, RecordLayout layout) {
  FileSummary summary;
  const TokenCounts counts = CountTokens(file.Tokens(), layout);
  summary.words = counts.tokens;
  summary.loci = layout.number_of_loci;
  summary.leftover_words = (counts.tokens - counts.separators) % (layout.number_of_loci + 1);
  SummarizeRecords(file.Tokens(), layout, summary);
  if (summary.leftover_words != 0 || summary.not_digits.count != 0) {
    if (const auto problem = FindMisshapenRecord(file, layout, ProblemKind::kWrongFieldCount)) {
      summary.misshapen = FilePlace{{}, problem->individual, problem->line};
    }
  }
  return summary;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/all_faults.h"

#include <algorithm>
#include <map>
#include <optional>

#include "genotypes/field_faults.h"
#include "genotypes/layout_hints.h"
#include "genotypes/record_checks.h"

namespace kaldo {

namespace {

/// As many as a run would need to tell, and a good deal more.
constexpr std::size_t kMostMisshapen = 100'000;

/// A record with its place in the file.
struct FoundRecord {
  Token name;
  std::span<const Token> fields;
  std::uint32_t number = 0;
  bool is_separator = false;
};

class Finder {
 public:
  Finder(const FaultSearch& search, const LociList& loci, AlikeGroups<Problem>& faults)
      : search_(search),
        loci_(loci),
        faults_(faults),
        file_(*search.checks.front().file),
        layout_{loci.Count(), search.checks.front().separators} {}

  void Search() {
    auto first = FirstFault();
    if (!first) {
      return;
    }
    const bool odd_digits = first->kind == search_.checks.front().odd_digits;
    faults_.Add(std::move(*first));
    if (FindLayoutHint(file_, layout_)) {
      return;
    }
    const auto lines = LinesOf(file_.Tokens());
    if (HasRecordPerLine(lines, layout_)) {
      faults_.AddAll(FindMisshapenRecords(
          file_, layout_,
          odd_digits ? search_.checks.front().odd_digits : ProblemKind::kWrongFieldCount,
          kMostMisshapen));
      SearchLines(lines);
    } else {
      SearchWords();
    }
  }

 private:
  /// What a run would tell of this file.
  std::optional<Problem> FirstFault() const {
    for (const FileWideCheck& check : search_.checks) {
      if (auto problem = CheckFileWide(check, loci_)) {
        return problem;
      }
    }
    if (auto problem = CheckRecords(file_, layout_, loci_, search_.digits_per_field)) {
      return problem;
    }
    RecordCursor cursor(file_.Tokens(), layout_);
    while (search_.refuses_signs_of_no_parent && !cursor.AtEnd()) {
      cursor.Next();
      if (auto fault = FaultOfParentName(cursor.Name().text)) {
        return At({cursor.Name(), {}, cursor.Record()}, cursor.Name(), std::move(*fault));
      }
    }
    return std::nullopt;
  }

  void SearchLines(const std::vector<Line>& lines) const {
    for (std::size_t k = 0; k < lines.size(); ++k) {
      if (IsOneRecord(lines[k], layout_)) {
        const Token& name = lines[k].front();
        SearchRecord({name, lines[k].subspan(1), static_cast<std::uint32_t>(k) + 1,
                      layout_.IsSeparator(name.text)});
      }
    }
  }

  void SearchWords() const {
    RecordCursor cursor(file_.Tokens(), layout_);
    bool is_torn = false;
    while (!cursor.AtEnd() && !is_torn) {
      cursor.Next();
      SearchRecord({cursor.Name(), cursor.Fields(), cursor.Record(), cursor.IsSeparator()});
      is_torn = std::any_of(cursor.Fields().begin(), cursor.Fields().end(),
                            [](const Token& field) { return !IsAllDigits(field.text); });
    }
  }

  void SearchRecord(const FoundRecord& record) const {
    for (std::size_t locus = 0; locus < record.fields.size(); ++locus) {
      const Token& field = record.fields[locus];
      if (auto fault = FirstFaultOf(field.text)) {
        fault->locus = loci_.Names()[locus];
        faults_.Add(At(record, field, std::move(*fault)));
      }
    }
    auto fault = FaultOfRecordName(record.name.text, record.is_separator);
    if (!fault && search_.refuses_signs_of_no_parent) {
      fault = FaultOfParentName(record.name.text);
    }
    if (fault) {
      faults_.Add(At(record, record.name, std::move(*fault)));
    }
  }

  std::optional<Problem> FirstFaultOf(std::string_view field) const {
    if (!IsEvenField(field)) {
      return Problem{.kind = search_.checks.front().odd_digits,
                     .found = OddFieldText(field, file_.Tokens(), layout_)};
    }
    for (const FileWideCheck& check : search_.checks) {
      if (IsAllDigits(field) && HoldsForbidden(field, check.undefined_alleles)) {
        return Problem{.kind = check.undefined, .found = ForbiddenText(field)};
      }
    }
    return FaultOfField(field, search_.digits_per_field);
  }

  Problem At(const FoundRecord& record, const Token& word, Problem fault) const {
    fault.file = file_.Path();
    fault.line = word.line;
    fault.record = record.number;
    fault.individual = record.name.text;
    return fault;
  }

  const FaultSearch& search_;
  const LociList& loci_;
  AlikeGroups<Problem>& faults_;
  const TokenFile& file_;
  RecordLayout layout_;
};

}  // namespace

void FindAllFaults(const FaultSearch& search, const LociList& loci, AlikeGroups<Problem>& faults) {
  Finder(search, loci, faults).Search();
}

std::size_t CommonDigitsPerField(const TokenFile& file, RecordLayout layout) {
  std::map<std::size_t, std::size_t> fields_of;
  for (const Line& line : LinesOf(file.Tokens())) {
    if (!IsOneRecord(line, layout)) {
      continue;
    }
    for (const Token& field : line.subspan(1)) {
      fields_of[field.text.size()] += IsAllDigits(field.text) ? 1 : 0;
    }
  }
  const auto most = std::max_element(
      fields_of.begin(), fields_of.end(),
      [](const auto& one, const auto& other) { return one.second < other.second; });
  return most == fields_of.end() ? DigitsPerField(file, layout) : most->first;
}

}  // namespace kaldo

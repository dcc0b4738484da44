// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/export_table.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "base/number_text.h"
#include "runs/tsv_row.h"

namespace kaldo {

namespace {

/// Words that R or pandas take for a truth or for nothing.
constexpr std::array<std::string_view, 22> kWordsOfPrograms = {
    "T",    "F",    "TRUE", "FALSE", "true", "false", "True", "False", "NA",   "N/A", "n/a",
    "#N/A", "<NA>", "NaN",  "nan",   "-NaN", "-nan",  "NULL", "null",  "None", "Inf", "inf"};

/// Appends a cell to a row.
struct ToRow {
  TsvRow& row;

  void operator()(std::monostate /*nothing*/) const { row.Nothing(); }
  void operator()(const NameCell& name) const { row.Text(name.text); }
  void operator()(WordCell word) const { row.Plain(word.text); }
  void operator()(bool truth) const { row.Plain(truth ? "TRUE" : "FALSE"); }
  void operator()(std::int64_t number) const { row.Whole(number); }
  void operator()(double number) const { row.Number(number); }
};

struct ToText {
  std::string operator()(std::monostate /*nothing*/) const { return {}; }
  std::string operator()(const NameCell& name) const { return name.text; }
  std::string operator()(WordCell word) const { return std::string(word.text); }
  std::string operator()(bool truth) const { return truth ? "yes" : "no"; }
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(double number) const { return fmt::format("{:.4g}", number + 0.0); }
};

}  // namespace

Cell CellOf(std::optional<double> value) { return value ? Cell(*value) : Cell(); }

std::string TsvText(const ExportTable& table) {
  TsvRow heads;
  for (const std::string& head : table.heads) {
    heads.Plain(head);
  }
  std::string text = heads.Line();
  for (std::size_t k = 0; k < table.rows; ++k) {
    TsvRow row;
    for (const Cell& cell : table.row(k)) {
      std::visit(ToRow{row}, cell);
    }
    text += row.Line();
  }
  return text;
}

std::string PlainText(const Cell& cell) { return std::visit(ToText{}, cell); }

bool IsGuessedAnew(std::string_view name) {
  return name.empty() || ParseDouble(name).has_value() ||
         std::find(kWordsOfPrograms.begin(), kWordsOfPrograms.end(), name) !=
             kWordsOfPrograms.end();
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kaldo {

/// A name that a user gave: any bytes may be in it.
struct NameCell {
  std::string text;
};

/// A word of the program: "collected".
struct WordCell {
  std::string_view text;
};

/// One cell of a table: nothing, a name, a word, a truth, a whole number, a number.
using Cell = std::variant<std::monostate, NameCell, WordCell, bool, std::int64_t, double>;

/// The number, or nothing.
Cell CellOf(std::optional<double> value);

/// A table for other programs, made row by row: it may be long.
struct ExportTable {
  std::string_view file;   ///< in a project folder: "/Allocations.tsv"
  std::string_view sheet;  ///< in a workbook: "Allocations"
  std::vector<std::string> heads;
  std::size_t rows = 0;
  std::function<std::vector<Cell>(std::size_t row)> row;
};

/// One column of a table whose rows are made of `Row`.
template <typename Row>
struct ExportColumn {
  std::string_view head;
  std::function<Cell(const Row& row)> cell;
};

template <typename Row>
std::vector<std::string> HeadsOf(const std::vector<ExportColumn<Row>>& columns) {
  std::vector<std::string> heads;
  heads.reserve(columns.size());
  for (const auto& column : columns) {
    heads.emplace_back(column.head);
  }
  return heads;
}

template <typename Row>
std::vector<Cell> CellsOf(const std::vector<ExportColumn<Row>>& columns, const Row& row) {
  std::vector<Cell> cells;
  cells.reserve(columns.size());
  for (const auto& column : columns) {
    cells.push_back(column.cell(row));
  }
  return cells;
}

/// The table as R's read.delim and pandas' read_table read it without being told anything: heads,
/// cells between tabs, decimal points, NA, TRUE and FALSE.
std::string TsvText(const ExportTable& table);

/// What a reader sees in a cell; empty where there is nothing.
std::string PlainText(const Cell& cell);

/// Whether a program that guesses types would take the name for something else: a number (00012,
/// 1e5), a truth (T) or nothing (NA).
bool IsGuessedAnew(std::string_view name);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/json.h"

#include <algorithm>
#include <cmath>

#include "base/problem.h"

namespace kaldo {

namespace {

/// "with_uncollected" is "with uncollected".
std::string HeadText(std::string head) {
  std::replace(head.begin(), head.end(), '_', ' ');
  return head;
}

Json RowJson(const std::vector<Cell>& cells) {
  Json row = Json::array();
  for (const Cell& cell : cells) {
    row.push_back(CellJson(cell));
  }
  return row;
}

bool IsNumeric(const Json& rows, std::size_t column) {
  for (const Json& row : rows) {
    if (!row[column].is_null()) {
      return row[column].is_number();
    }
  }
  return false;
}

}  // namespace

Json FigureJson(double value) { return std::isfinite(value) ? Json(value) : Json(); }

Json CellJson(const Cell& cell) {
  return std::visit(
      [](const auto& value) -> Json {
        using Value = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::monostate>) {
          return {};
        } else if constexpr (std::is_same_v<Value, NameCell>) {
          return Escaped(value.text);
        } else if constexpr (std::is_same_v<Value, WordCell>) {
          return std::string(value.text);
        } else if constexpr (std::is_same_v<Value, double>) {
          return FigureJson(value);
        } else {
          return value;
        }
      },
      cell);
}

Json TableJson(const ExportTable& table) {
  Json rows = Json::array();
  for (std::size_t k = 0; k < table.rows; ++k) {
    rows.push_back(RowJson(table.row(k)));
  }
  Json columns = Json::array();
  for (std::size_t k = 0; k < table.heads.size(); ++k) {
    columns.push_back({{"head", HeadText(table.heads[k])}, {"numeric", IsNumeric(rows, k)}});
  }
  return {{"columns", std::move(columns)}, {"rows", std::move(rows)}};
}

std::string Dumped(const Json& json) {
  return json.dump(-1, ' ', true, Json::error_handler_t::replace);
}

}  // namespace kaldo

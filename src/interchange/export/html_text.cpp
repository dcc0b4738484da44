// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/html_text.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

namespace {

bool IsNumber(const Cell& cell) {
  return std::holds_alternative<double>(cell) || std::holds_alternative<std::int64_t>(cell);
}

}  // namespace

std::string HtmlText(std::string_view text) {
  std::string shown;
  for (const char character : Escaped(text)) {
    switch (character) {
      case '&':
        shown += "&amp;";
        break;
      case '<':
        shown += "&lt;";
        break;
      case '>':
        shown += "&gt;";
        break;
      case '"':
        shown += "&quot;";
        break;
      case '\'':
        shown += "&#39;";
        break;
      default:
        shown += character;
    }
  }
  return shown;
}

std::string HtmlTable(const ExportTable& table) {
  std::string text = "<table>\n<thead><tr>";
  for (const std::string& head : table.heads) {
    text += fmt::format("<th scope=\"col\">{}</th>", HtmlText(head));
  }
  text += "</tr></thead>\n<tbody>\n";
  for (std::size_t k = 0; k < table.rows; ++k) {
    text += "<tr>";
    for (const Cell& cell : table.row(k)) {
      text += fmt::format("<td{}>{}</td>", IsNumber(cell) ? " class=\"n\"" : "",
                          HtmlText(PlainText(cell)));
    }
    text += "</tr>\n";
  }
  return text + "</tbody>\n</table>\n";
}

ExportTable WithoutColumns(ExportTable table, std::span<const std::string_view> heads) {
  std::vector<std::size_t> kept;
  std::vector<std::string> kept_heads;
  for (std::size_t k = 0; k < table.heads.size(); ++k) {
    if (std::find(heads.begin(), heads.end(), table.heads[k]) == heads.end()) {
      kept.push_back(k);
      kept_heads.push_back(table.heads[k]);
    }
  }
  table.heads = std::move(kept_heads);
  table.row = [kept = std::move(kept), row = std::move(table.row)](std::size_t number) {
    const std::vector<Cell> all = row(number);
    std::vector<Cell> cells;
    cells.reserve(kept.size());
    for (const std::size_t k : kept) {
      cells.push_back(all[k]);
    }
    return cells;
  };
  return table;
}

std::string BarChart(std::string_view title, std::span<const Bar> bars) {
  constexpr int kRow = 24;
  constexpr int kLeft = 190;
  constexpr double kWidth = 380;
  double most = 0;
  for (const Bar& bar : bars) {
    most = std::max(most, bar.value);
  }
  std::string text = fmt::format(
      "<svg role=\"img\" viewBox=\"0 0 640 {0}\" width=\"640\" "
      "height=\"{0}\">\n<title>{1}</title>\n",
      kRow * static_cast<int>(bars.size()) + 8, HtmlText(title));
  int top = 4;
  for (const Bar& bar : bars) {
    const double width = most > 0 ? kWidth * bar.value / most : 0;
    text += fmt::format(
        "<text x=\"{}\" y=\"{}\" text-anchor=\"end\">{}</text>"
        "<rect x=\"{}\" y=\"{}\" width=\"{:.1f}\" height=\"{}\"/>"
        "<text x=\"{:.1f}\" y=\"{}\">{:g}</text>\n",
        kLeft - 8, top + 16, HtmlText(bar.label), kLeft, top + 3, width, kRow - 8,
        kLeft + width + 6, top + 16, bar.value);
    top += kRow;
  }
  return text + "</svg>\n";
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/report_lines.h"

namespace kaldo {

std::string_view ReportLines::Next() {
  const std::size_t end = rest_.find('\n');
  const std::string_view line = rest_.substr(0, end);
  rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
  return line;
}

void ReportLines::SkipBehind(std::string_view start) {
  while (!AtEnd() && !Next().starts_with(start)) {
  }
}

std::vector<std::string_view> CellsOf(std::string_view line) {
  std::vector<std::string_view> cells;
  while (true) {
    const std::size_t tab = line.find('\t');
    cells.push_back(line.substr(0, tab));
    if (tab == std::string_view::npos) {
      return cells;
    }
    line.remove_prefix(tab + 1);
  }
}

}  // namespace kaldo

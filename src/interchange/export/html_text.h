// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "interchange/export/export_table.h"

namespace kaldo {

/// The text as a page shows it, whatever is in it: nothing becomes a mark of the page, and what is
/// no character that can be shown is escaped.
std::string HtmlText(std::string_view text);

/// A table with a line of heads that repeats on every printed page.
std::string HtmlTable(const ExportTable& table);

/// The table without some of its columns, by their heads.
ExportTable WithoutColumns(ExportTable table, std::span<const std::string_view> heads);

/// A bar of a chart.
struct Bar {
  std::string label;
  double value = 0;
};

/// Horizontal bars with their labels and values, drawn in the page itself. `title` is for those who
/// do not see it.
std::string BarChart(std::string_view title, std::span<const Bar> bars);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/subset_statistics.h"

#include "base/number_text.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

std::vector<double> Collect(const std::vector<Spread>& spreads, double Spread::*value) {
  std::vector<double> values;
  values.reserve(spreads.size());
  for (const Spread& spread : spreads) {
    values.push_back(spread.*value);
  }
  return values;
}

}  // namespace

std::string TableHeads(std::string_view word, std::span<const std::string_view> columns,
                       std::span<const std::string_view> ratio_columns, bool has_ratios) {
  std::string heads(word);
  for (const std::string_view column : columns) {
    heads.append("\t").append(column);
  }
  if (has_ratios) {
    heads += "\t       --->";
    for (const std::string_view column : ratio_columns) {
      heads.append("\t").append(column);
    }
  }
  return heads + '\n';
}

std::string TableRow(std::string_view word, std::span<const double> columns,
                     std::span<const double> ratios) {
  std::string row(word);
  for (const double value : columns) {
    row += '\t' + FormatDouble(value);
  }
  row += ratios.empty() ? "" : "\t";
  for (const double value : ratios) {
    row += '\t' + FormatDouble(value);
  }
  return row + '\n';
}

std::string SpreadRows(const TableSpreads& spreads, std::string_view deviation_word) {
  return TableRow("mean", Collect(spreads.columns, &Spread::mean),
                  Collect(spreads.ratios, &Spread::mean)) +
         TableRow(deviation_word, Collect(spreads.columns, &Spread::deviation),
                  Collect(spreads.ratios, &Spread::deviation));
}

std::string SubsetStatistics(const SimulationTexts& texts, const LociList& loci,
                             const SubsetFigures& subset) {
  if (subset.tables.empty()) {
    return {};
  }
  std::string text = SubsetTitle(loci, subset.loci) + '\n';
  for (std::size_t k = 0; k < subset.tables.size(); ++k) {
    const OriginTexts& origin = texts.origins[k];
    text.append(origin.table_title).append("\n");
    text += TableHeads("", texts.short_columns, texts.short_ratio_columns,
                       !subset.tables[k].ratios.empty());
    text += SpreadRows(subset.tables[k], origin.table_spread) + '\n';
  }
  return text;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/subset_statistics.h"

#include "base/number_text.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

std::string ClassSection(const SimulationDesign& design, const IterationTable& table,
                         std::string_view title, std::string_view deviation_word) {
  const bool has_ratios = table.spreads.size() > table.columns;
  return std::string(title) + '\n' +
         TableHeads("", design.short_columns,
                    has_ratios ? std::span(design.short_ratio_columns)
                               : std::span<const std::string_view>{}) +
         SpreadRows(table, deviation_word) + '\n';
}

}  // namespace

std::string TableHeads(std::string_view word, std::span<const std::string_view> columns,
                       std::span<const std::string_view> ratio_columns) {
  std::string heads(word);
  for (const std::string_view column : columns) {
    heads.append("\t").append(column);
  }
  if (!ratio_columns.empty()) {
    heads += "\t       --->";
  }
  for (const std::string_view column : ratio_columns) {
    heads.append("\t").append(column);
  }
  return heads + '\n';
}

std::string TableRow(std::string_view word, std::span<const double> values, std::size_t columns) {
  std::string row(word);
  for (std::size_t column = 0; column < values.size(); ++column) {
    row += column == columns ? "\t\t" : "\t";
    row += FormatDouble(values[column]);
  }
  return row + '\n';
}

std::string SpreadRows(const IterationTable& table, std::string_view deviation_word) {
  std::vector<double> means;
  std::vector<double> deviations;
  for (const Spread& spread : table.spreads) {
    means.push_back(spread.mean);
    deviations.push_back(spread.deviation);
  }
  return TableRow("mean", means, table.columns) +
         TableRow(deviation_word, deviations, table.columns);
}

std::string SubsetStatistics(const SimulationFlow& flow, const SimulationInput& input,
                             const LocusSubset& loci, Iterations iterations) {
  const SimulationDesign& design = flow.Design();
  std::string text = SubsetTitle(input.loci, loci) + '\n';
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    const OriginTexts& texts = design.classes[k].texts;
    text += ClassSection(design, TableOfClass(flow, iterations, k), texts.table_title,
                         texts.table_deviation);
  }
  return text + ClassSection(design, GlobalTable(flow, input, iterations), design.global_title,
                             design.global_deviation);
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/parameter_block.h"
#include "simulation/reports/simulation_report_texts.h"
#include "simulation/reports/subset_statistics.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

std::vector<double> ValuesIn(const std::vector<IterationSeries>& columns, std::size_t iteration) {
  std::vector<double> values;
  values.reserve(columns.size());
  for (const IterationSeries& column : columns) {
    values.push_back(column.values[iteration]);
  }
  return values;
}

}  // namespace

std::string IterationTableReport(const SimulationSettings& settings, const SimulationInput& input,
                                 const SimulationResult& result, std::size_t origin) {
  const SimulationTexts& texts = TextsOf(settings.flow);
  const OriginTexts& of_origin = texts.origins[origin];
  const IterationTable& table = result.origins[origin].table;
  const bool is_global = origin + 1 == result.origins.size();
  std::string text = ParameterBlock(settings, input, result).append(of_origin.table_title);
  text.append(is_global ? "" : LastCombinationNote(settings.strategy)).append("\n\n");
  text +=
      TableHeads(of_origin.table_word, texts.columns, texts.ratio_columns, !table.ratios.empty());
  for (std::size_t i = 0; i < table.columns.front().values.size(); ++i) {
    text += TableRow(std::to_string(i + 1), ValuesIn(table.columns, i), ValuesIn(table.ratios, i));
  }
  return text + SpreadRows(SpreadsOf(table), of_origin.table_spread);
}

}  // namespace kaldo

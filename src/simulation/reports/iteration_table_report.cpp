// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/parameter_block.h"
#include "simulation/reports/simulation_report_texts.h"
#include "simulation/reports/subset_statistics.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

std::string IterationTableReport(const SimulationSettings& settings, const SimulationInput& input,
                                 const SimulationFlow& flow, const SimulationResult& result,
                                 std::size_t table_number) {
  const SimulationDesign& design = flow.Design();
  const bool is_global = table_number == design.classes.size();
  std::string title(design.global_title);
  std::string_view word = design.global_word;
  std::string_view deviation = design.global_deviation;
  if (!is_global) {
    const OriginTexts& texts = design.classes[table_number].texts;
    title = std::string(texts.table_title) + std::string(LastCombinationNote(settings.strategy));
    word = texts.table_word;
    deviation = texts.table_deviation;
  }
  const IterationTable table = is_global ? GlobalTable(flow, input, result.iterations)
                                         : TableOfClass(flow, result.iterations, table_number);
  const bool has_ratios = is_global || design.classes_have_ratios;
  std::string text = ParameterBlock(settings, input, flow, result) + title + "\n\n" +
                     TableHeads(word, design.columns,
                                has_ratios ? std::span(design.ratio_columns)
                                           : std::span<const std::string_view>{});
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    text += TableRow(std::to_string(i + 1), table.rows[i], table.columns);
  }
  return text + SpreadRows(table, deviation);
}

}  // namespace kaldo

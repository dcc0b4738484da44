// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/reports/parameter_block.h"
#include "simulation/reports/simulation_report_texts.h"
#include "simulation/reports/subset_statistics.h"

namespace kaldo {

namespace {

std::string SpreadText(const IterationSeries& series, bool is_empty) {
  return FigureText(series.spread.mean, is_empty) + '\t' +
         FigureText(series.spread.deviation, is_empty);
}

std::string AverageLines(const SimulationTexts& texts, const SubsetFigures& subset) {
  std::string lines(texts.averages_head);
  for (const AverageSection& section : texts.averages) {
    lines.append(section.title).append("\n");
    for (const AverageText& average : section.averages) {
      lines +=
          fmt::format("{}{}{}\n", average.label, section.gap, FormatDouble(average.value(subset)));
    }
    lines += "\n\n";
  }
  return lines;
}

/// A row of the table of correct frequencies: what `value_of` tells of each origin.
template <typename ValueOf>
std::string CorrectRow(std::string_view word, const std::vector<OriginStatistics>& origins,
                       ValueOf value_of) {
  std::string row = std::string(word) + '\t';
  for (const OriginStatistics& origin : origins) {
    row += '\t' + FigureText(value_of(origin.correct), origin.is_empty);
  }
  return row + '\n';
}

/// The frequencies of correct decisions, class by class and global, in all iterations.
std::string CorrectFrequencyLines(const SimulationTexts& texts, const SimulationResult& result) {
  std::string text =
      "DISTRIBUTION OF CORRECT ALLOCATION FREQUENCIES ACCORDING TO PARENTAL ORIGIN :\n"
      "Correct :\t--->  correct allocation to a (pseudo)collected parent\n"
      "\t--->  non-allocation (UC) when parent is indeed uncollected\n\n\nIteration # :\t";
  for (const OriginTexts& origin : texts.origins) {
    text.append("\t").append(origin.column);
  }
  text += "\n\n\n";
  for (std::size_t i = 0; i < result.Global().correct.values.size(); ++i) {
    text += CorrectRow(std::to_string(i + 1), result.origins,
                       [i](const IterationSeries& correct) { return correct.values[i]; });
  }
  text += '\n';
  text += CorrectRow("Average", result.origins,
                     [](const IterationSeries& correct) { return correct.spread.mean; });
  text += CorrectRow("SD", result.origins,
                     [](const IterationSeries& correct) { return correct.spread.deviation; });
  return text + "\n\n\n";
}

/// One line per kind of decision; a label that repeats the one above is left out.
std::string RowLines(const SimulationTexts& texts, const OriginStatistics& origin) {
  std::string lines;
  std::string_view above;
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    const OriginRow& kind = origin.rows[row].decision;
    const std::string_view allocated = texts.allocated.at(kind.allocated);
    const bool all_right = row == 0 && kind.weight == 2;
    lines += fmt::format("{}\t{}\t{}\n", allocated == above ? "" : allocated,
                         all_right ? texts.both_correct : texts.correct.at(kind.correct),
                         SpreadText(origin.rows[row].frequency, origin.is_empty));
    above = allocated;
  }
  return lines;
}

std::string FirstPairLines(const OriginTexts& texts, const OriginStatistics& origin) {
  std::string lines;
  for (std::size_t k = 0; k < origin.first_pair.size(); ++k) {
    lines += fmt::format("{}\t{}\t{}\n", k == 0 ? "\nFirst pair :" : "", texts.first_pair_labels[k],
                         SpreadText(origin.first_pair[k], origin.is_empty));
  }
  return lines;
}

std::string StatisticsBlock(const SimulationTexts& texts, const OriginTexts& of_origin,
                            const OriginStatistics& origin) {
  return fmt::format("{}\nNumber of pseudo-offspring generated per iteration : {}\n{}",
                     of_origin.block_title, origin.offspring, texts.statistics_heads) +
         RowLines(texts, origin) +
         fmt::format("\n\nFrequency correct :\t\t{}\n",
                     SpreadText(origin.correct, origin.is_empty)) +
         FirstPairLines(of_origin, origin) + "\n\n";
}

}  // namespace

std::string FigureText(double value, bool is_empty) {
  return is_empty ? "       NA" : FormatDouble(value);
}

void WriteSummary(const SimulationSettings& settings, const SimulationInput& input,
                  const SimulationResult& result, ReportFile& file) {
  const SimulationTexts& texts = TextsOf(settings.flow);
  file.Append(ParameterBlock(settings, input, result));
  file.Append(AverageLines(texts, result.LastSubset()));
  file.Append(CorrectFrequencyLines(texts, result));
  file.Append(fmt::format("STATISTICS OVER ALL ITERATIONS :\n{}\n\n", texts.statistics_legend));
  for (std::size_t k = 0; k < result.origins.size(); ++k) {
    file.Append(StatisticsBlock(texts, texts.origins[k], result.origins[k]));
  }
  for (const SubsetFigures& subset : result.subsets) {
    file.Append(SubsetStatistics(texts, input.loci, subset));
  }
}

}  // namespace kaldo

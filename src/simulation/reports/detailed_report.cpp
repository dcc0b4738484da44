// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include "simulation/reports/simulation_report_texts.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

/// The rows of one class, or of all classes together, in one iteration.
class DetailedBlock {
 public:
  DetailedBlock(const SimulationTexts& texts, std::size_t origin,
                const OriginStatistics& statistics, std::size_t iteration)
      : texts_(texts),
        origin_(texts.origins[origin]),
        statistics_(statistics),
        iteration_(iteration) {}

  std::string Text(bool has_formula) const {
    return RowLines() +
           fmt::format("\n\n     Frequency of correct allocation or non allocation : {}\n",
                       Value(statistics_.correct)) +
           (has_formula ? FormulaLine() : "") + "\n\n\n";
  }

 private:
  std::string Value(const IterationSeries& series) const {
    return FigureText(series.values[iteration_], statistics_.is_empty);
  }

  std::string RowLines() const {
    std::string lines;
    std::string_view above;
    for (std::size_t row = 0; row < statistics_.rows.size(); ++row) {
      const OriginRow& kind = statistics_.rows[row].decision;
      const std::string_view allocated = texts_.allocated.at(kind.allocated);
      const bool repeats = allocated == above;
      above = allocated;
      if (row == 0) {
        lines += std::string(origin_.detailed) + "\t\t\t\t";
      } else if (row + 1 == origin_.size_row) {
        lines += fmt::format("\t# of offspring = {}{}", statistics_.offspring,
                             repeats ? "\t\t\t\t" : "\t\t\t");
      } else {
        lines += "\t\t\t\t";
      }
      lines += fmt::format("{}\t{}\t{}\n", repeats ? "" : allocated,
                           texts_.correct.at(kind.correct), Value(statistics_.rows[row].frequency));
    }
    return lines;
  }

  /// How the frequency of correct decisions follows from the rows.
  std::string FormulaLine() const {
    std::vector<std::string> terms;
    for (const RowStatistics& row : statistics_.rows) {
      terms.push_back(fmt::format("{}x{}", row.decision.weight, Value(row.frequency)));
    }
    return fmt::format("     ( {} )/2 = {}\n", fmt::join(terms, " + "), Value(statistics_.correct));
  }

  const SimulationTexts& texts_;
  const OriginTexts& origin_;
  const OriginStatistics& statistics_;
  std::size_t iteration_;
};

}  // namespace

std::string DetailedReport(const SimulationSettings& settings, const SimulationResult& result) {
  const SimulationTexts& texts = TextsOf(settings.flow);
  const std::size_t global = result.origins.size() - 1;
  std::string text;
  if (settings.flow == Flow::kNonSexed && settings.strategy != LociStrategy::kChoice) {
    text = fmt::format("DETAILED RESULTS{}\n\n", LastCombinationNote(settings.strategy));
  }
  for (std::size_t i = 0; i < result.Global().correct.values.size(); ++i) {
    text += fmt::format(
        "Iteration n° : {}\n"
        "Parental origin\t\t\t\tCollected\tCollected\n"
        "\t\t\t\tAllocated\tCorrect\tFrequency\n",
        i + 1);
    for (std::size_t k = 0; k <= global; ++k) {
      text += DetailedBlock(texts, k, result.origins[k], i).Text(k != global);
    }
  }
  return text;
}

}  // namespace kaldo

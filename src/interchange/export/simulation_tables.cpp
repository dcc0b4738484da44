// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/simulation_tables.h"

#include <array>
#include <cctype>
#include <cmath>

#include <fmt/format.h>

#include "interchange/export/allocation_tables.h"
#include "simulation/reports/simulation_texts.h"

namespace kaldo {

namespace {

/// What the averages of a subset are called, in the order of SimulationTexts::averages.
constexpr std::array<std::string_view, 8> kNonSexedAverages = {"both",
                                                               "one",
                                                               "none",
                                                               "collected",
                                                               "uncollected",
                                                               "p_correct",
                                                               "p_correct_collected",
                                                               "p_correct_uncollected"};
constexpr std::array<std::string_view, 10> kSexedAverages = {"both",
                                                             "only_father",
                                                             "only_mother",
                                                             "none",
                                                             "male_collected",
                                                             "female_collected",
                                                             "p_correct",
                                                             "p_correct_male",
                                                             "p_correct_female",
                                                             "p_correct_uncollected"};

Cell Figure(double value) { return std::isnan(value) ? Cell() : Cell(value); }

/// "C X C :" without its colon.
std::string_view LabelOf(const OriginTexts& origin) {
  const std::size_t end = origin.label.find_last_not_of(" :\t");
  return origin.label.substr(0, end + 1);
}

std::string Lower(std::string_view text) {
  std::string lower;
  for (const char character : text) {
    lower += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  }
  return lower;
}

std::vector<Cell> IterationRow(const SimulationResult& result, const SimulationTexts& texts,
                               std::size_t row) {
  const std::size_t iteration = row / result.origins.size();
  const std::size_t place = row % result.origins.size();
  const OriginStatistics& origin = result.origins[place];
  const auto value = [&](const IterationSeries& series) {
    return origin.is_empty ? Cell() : Figure(series.values[iteration]);
  };
  std::vector<Cell> cells = {static_cast<std::int64_t>(iteration + 1),
                             WordCell{LabelOf(texts.origins[place])},
                             std::int64_t{origin.offspring}, value(origin.correct)};
  for (const IterationSeries& column : origin.table.columns) {
    cells.push_back(value(column));
  }
  return cells;
}

std::vector<Cell> SubsetRow(const SimulationTexts& texts, const SimulationInput& input,
                            const SimulationResult& result, std::size_t row) {
  const SubsetFigures& subset = result.subsets[row];
  std::string names;
  for (const LocusIndex locus : subset.loci) {
    names.append(names.empty() ? "" : ",").append(input.loci.Name(locus));
  }
  std::vector<Cell> cells = {static_cast<std::int64_t>(row + 1),
                             static_cast<std::int64_t>(subset.loci.size()),
                             NameCell{std::move(names)}};
  for (const AverageSection& section : texts.averages) {
    for (const AverageText& average : section.averages) {
      cells.push_back(Figure(average.value(subset)));
    }
  }
  return cells;
}

}  // namespace

ExportTable IterationsTable(const SimulationSettings& settings, const SimulationResult& result) {
  const SimulationTexts& texts = TextsOf(settings.flow);
  std::vector<std::string> heads = {"iteration", "origin", "offspring", "correct"};
  for (const std::string_view column : texts.columns) {
    heads.push_back(Lower(column));
  }
  return {kIterationsTable, "Iterations", std::move(heads),
          result.states.size() * result.origins.size(),
          [&](std::size_t row) { return IterationRow(result, texts, row); }};
}

ExportTable SubsetsTable(const SimulationSettings& settings, const SimulationInput& input,
                         const SimulationResult& result) {
  const SimulationTexts& texts = TextsOf(settings.flow);
  std::vector<std::string> heads = {"subset", "loci", "names"};
  if (settings.flow == Flow::kSexed) {
    heads.insert(heads.end(), kSexedAverages.begin(), kSexedAverages.end());
  } else {
    heads.insert(heads.end(), kNonSexedAverages.begin(), kNonSexedAverages.end());
  }
  return {kSequenceTable, "Sequence", std::move(heads), result.subsets.size(),
          [&](std::size_t row) { return SubsetRow(texts, input, result, row); }};
}

}  // namespace kaldo

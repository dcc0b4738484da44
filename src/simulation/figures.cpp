// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures.h"

#include <algorithm>

namespace kaldo {

namespace {

std::int32_t WeightedCount(const OriginClass& origin, const ClassCounts& counts) {
  std::int32_t sum = 0;
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    sum += origin.rows[row].weight * counts.rows.at(row);
  }
  return sum;
}

double HalfShare(std::int32_t weighted_count, std::int32_t size) {
  return size == 0 ? 0.0 : static_cast<double>(weighted_count) / 2 / static_cast<double>(size);
}

/// The count of the row with the same sides, 0 where the class has none.
std::int32_t CountOfSides(const OriginClass& origin, const ClassCounts& counts,
                          const OriginRow& wanted) {
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    if (origin.rows[row].allocated == wanted.allocated &&
        origin.rows[row].correct == wanted.correct) {
      return counts.rows.at(row);
    }
  }
  return 0;
}

std::int32_t AllOffspring(const IterationCounts& counts) {
  std::int32_t all = 0;
  for (const ClassCounts& of_class : counts) {
    all += of_class.size;
  }
  return all;
}

/// A value of each class in turn, weighed.
template <typename ValueOf>
double WeighClasses(const SimulationDesign& design, std::span<const double> weights,
                    const IterationCounts& counts, ValueOf value_of) {
  std::array<double, kMostOriginClasses> values{};
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    values.at(k) = value_of(design.classes[k], counts.at(k));
  }
  return Weighed(weights, std::span(values).first(design.classes.size()));
}

/// Behind the columns, the first of them as shares of all pseudo-offspring with a single pair.
void AppendRatios(const SimulationDesign& design, std::vector<double>& row) {
  double assigned = row[0];
  for (std::size_t column = 1; column < design.assigned_columns; ++column) {
    assigned += row[column];
  }
  for (std::size_t column = 0; column < design.ratio_columns.size(); ++column) {
    row.push_back(Ratio(row[column], assigned));
  }
}

void AddSpreads(const SimulationDesign& design, IterationTable& table) {
  table.columns = design.columns.size();
  for (std::size_t column = 0; column < table.rows.front().size(); ++column) {
    std::vector<double> values;
    values.reserve(table.rows.size());
    for (const auto& row : table.rows) {
      values.push_back(row[column]);
    }
    table.spreads.push_back(SpreadOf(values, design.table_spread));
  }
}

}  // namespace

double Ratio(double numerator, double denominator) {
  return denominator == 0 ? 0.0 : numerator / denominator;
}

double Weighed(std::span<const double> weights, std::span<const double> of_classes) {
  double sum = weights[0] * of_classes[0];
  for (std::size_t k = 1; k < of_classes.size(); ++k) {
    sum += weights[k] * of_classes[k];
  }
  return sum;
}

double CorrectFrequency(const OriginClass& origin, const ClassCounts& counts) {
  return HalfShare(WeightedCount(origin, counts), counts.size);
}

double GlobalCorrectFrequency(const SimulationDesign& design, const SimulationInput& input,
                              const IterationCounts& counts) {
  if (design.global_rows == GlobalRows::kWeighted) {
    return WeighClasses(design, input.weights, counts, CorrectFrequency);
  }
  std::int32_t weighted_count = 0;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    weighted_count += WeightedCount(design.classes[k], counts.at(k));
  }
  return HalfShare(weighted_count, AllOffspring(counts));
}

double GlobalRowFrequency(const SimulationDesign& design, const SimulationInput& input,
                          const IterationCounts& counts, const OriginRow& row) {
  if (design.global_rows == GlobalRows::kWeighted) {
    return WeighClasses(design, input.weights, counts,
                        [&row](const OriginClass& origin, const ClassCounts& of_class) {
                          return of_class.Share(CountOfSides(origin, of_class, row));
                        });
  }
  std::int32_t count = 0;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    count += CountOfSides(design.classes[k], counts.at(k), row);
  }
  const std::int32_t all = AllOffspring(counts);
  return all == 0 ? 0.0 : static_cast<double>(count) / static_cast<double>(all);
}

std::vector<double> WeightedFigures(const SimulationFlow& flow, const SimulationInput& input,
                                    Iterations iterations) {
  const SimulationDesign& design = flow.Design();
  std::vector<double> sums(design.figures);
  std::vector<std::vector<double>> of_classes(design.classes.size(),
                                              std::vector<double>(design.figures));
  std::vector<double> values(design.classes.size());
  for (const IterationCounts& counts : iterations) {
    for (std::size_t k = 0; k < design.classes.size(); ++k) {
      flow.FillFigures(design.classes[k], counts.at(k), of_classes[k]);
    }
    for (std::size_t figure = 0; figure < design.figures; ++figure) {
      for (std::size_t k = 0; k < design.classes.size(); ++k) {
        values[k] = of_classes[k][figure];
      }
      sums[figure] += Weighed(input.weights, values);
    }
  }
  for (double& sum : sums) {
    sum /= static_cast<double>(iterations.size());
  }
  return sums;
}

IterationTable TableOfClass(const SimulationFlow& flow, Iterations iterations,
                            std::size_t class_number) {
  const SimulationDesign& design = flow.Design();
  IterationTable table;
  for (const IterationCounts& counts : iterations) {
    std::vector<double> row(design.columns.size());
    flow.FillColumns(counts.at(class_number), row);
    if (design.classes_have_ratios) {
      AppendRatios(design, row);
    }
    table.rows.push_back(std::move(row));
  }
  AddSpreads(design, table);
  return table;
}

IterationTable GlobalTable(const SimulationFlow& flow, const SimulationInput& input,
                           Iterations iterations) {
  const SimulationDesign& design = flow.Design();
  std::vector<std::vector<double>> of_classes(design.classes.size(),
                                              std::vector<double>(design.columns.size()));
  std::vector<double> values(design.classes.size());
  IterationTable table;
  for (const IterationCounts& counts : iterations) {
    std::vector<double> row;
    for (std::size_t k = 0; k < design.classes.size(); ++k) {
      flow.FillColumns(counts.at(k), of_classes[k]);
    }
    for (std::size_t column = 0; column < design.columns.size(); ++column) {
      for (std::size_t k = 0; k < design.classes.size(); ++k) {
        values[k] = of_classes[k][column];
      }
      row.push_back(Weighed(input.weights, values));
    }
    AppendRatios(design, row);
    table.rows.push_back(std::move(row));
  }
  AddSpreads(design, table);
  return table;
}

}  // namespace kaldo

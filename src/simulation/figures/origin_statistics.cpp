// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/origin_statistics.h"

#include "simulation/figures/best_pair_shares.h"
#include "simulation/figures/correct_frequency.h"
#include "simulation/figures/first_pair_shares.h"
#include "simulation/figures/row_frequency.h"

namespace kaldo {

namespace {

/// The series of what `value_of` tells for each iteration.
template <typename ValueOf>
IterationSeries Series(Iterations iterations, SpreadKind kind, ValueOf value_of) {
  IterationSeries series;
  series.values.reserve(iterations.size());
  for (const IterationCounts& counts : iterations) {
    series.values.push_back(value_of(counts));
  }
  series.spread = SpreadOf(series.values, kind);
  return series;
}

/// The series of several figures of which `values_of` tells all at once.
template <typename ValuesOf>
std::vector<IterationSeries> SeriesOfEach(Iterations iterations, SpreadKind kind,
                                          ValuesOf values_of) {
  std::vector<IterationSeries> series;
  for (const IterationCounts& counts : iterations) {
    const std::vector<double> values = values_of(counts);
    series.resize(values.size());
    for (std::size_t figure = 0; figure < values.size(); ++figure) {
      series[figure].values.push_back(values[figure]);
    }
  }
  for (IterationSeries& each : series) {
    each.spread = SpreadOf(each.values, kind);
  }
  return series;
}

template <typename SharesOf>
IterationTable Table(const SimulationDesign& design, Iterations iterations, bool has_ratios,
                     SharesOf shares_of) {
  IterationTable table;
  table.columns = SeriesOfEach(iterations, design.table_spread, shares_of);
  if (has_ratios) {
    table.ratios =
        SeriesOfEach(iterations, design.table_spread, [&](const IterationCounts& counts) {
          return RatiosToAssigned(design.table, shares_of(counts));
        });
  }
  return table;
}

OriginStatistics StatisticsOfClass(const SimulationDesign& design, Iterations iterations,
                                   std::size_t k) {
  const OriginClass& origin = design.classes[k];
  OriginStatistics statistics;
  statistics.offspring = iterations.front().at(k).size;
  statistics.is_empty = statistics.offspring == 0;
  for (const OriginRow& row : origin.rows) {
    statistics.rows.push_back(
        {row, Series(iterations, design.frequency_spread, [&](const IterationCounts& counts) {
           return RowFrequency(origin, counts.at(k), row);
         })});
  }
  statistics.correct =
      Series(iterations, design.frequency_spread,
             [&](const IterationCounts& counts) { return CorrectFrequency(origin, counts.at(k)); });
  if (design.tells_first_pairs) {
    statistics.first_pair = SeriesOfEach(
        iterations, design.frequency_spread,
        [&](const IterationCounts& counts) { return FirstPairShares(origin, counts.at(k)); });
  }
  return statistics;
}

OriginStatistics StatisticsOfAll(const SimulationDesign& design, std::span<const double> weights,
                                 Iterations iterations) {
  OriginStatistics statistics;
  statistics.offspring = PseudoOffspring(iterations.front());
  for (const OriginRow& row : design.classes.front().rows) {
    statistics.rows.push_back(
        {row, Series(iterations, design.frequency_spread, [&](const IterationCounts& counts) {
           return GlobalRowFrequency(design, weights, counts, row);
         })});
  }
  statistics.correct =
      Series(iterations, design.frequency_spread, [&](const IterationCounts& counts) {
        return GlobalCorrectFrequency(design, weights, counts);
      });
  if (design.tells_first_pairs) {
    statistics.first_pair = {Series(
        iterations, design.frequency_spread,
        [&](const IterationCounts& counts) { return CombinedFirstPairShare(design, counts); })};
  }
  return statistics;
}

}  // namespace

TableSpreads SpreadsOf(const IterationTable& table) {
  TableSpreads spreads;
  for (const IterationSeries& column : table.columns) {
    spreads.columns.push_back(column.spread);
  }
  for (const IterationSeries& ratio : table.ratios) {
    spreads.ratios.push_back(ratio.spread);
  }
  return spreads;
}

std::vector<OriginStatistics> StatisticsByOrigin(const SimulationDesign& design,
                                                 std::span<const double> weights,
                                                 Iterations iterations) {
  std::vector<OriginStatistics> origins;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    origins.push_back(StatisticsOfClass(design, iterations, k));
  }
  origins.push_back(StatisticsOfAll(design, weights, iterations));
  std::vector<IterationTable> tables = TablesByOrigin(design, weights, iterations);
  for (std::size_t k = 0; k < origins.size(); ++k) {
    origins[k].table = std::move(tables[k]);
  }
  return origins;
}

std::vector<IterationTable> TablesByOrigin(const SimulationDesign& design,
                                           std::span<const double> weights, Iterations iterations) {
  std::vector<IterationTable> tables;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    tables.push_back(Table(
        design, iterations, design.table.classes_have_ratios,
        [&](const IterationCounts& counts) { return BestPairShares(design.flow, counts.at(k)); }));
  }
  tables.push_back(Table(design, iterations, true, [&](const IterationCounts& counts) {
    return GlobalBestPairShares(design, weights, counts);
  }));
  return tables;
}

}  // namespace kaldo

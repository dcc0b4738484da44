// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulation/figures/spread.h"
#include "simulation/flows/simulation_design.h"
#include "simulation/iteration_counts.h"

namespace kaldo {

/// A figure in every iteration, and its spread over them.
struct IterationSeries {
  std::vector<double> values;  ///< one per iteration, in their order
  Spread spread;
};

/// One kind of decision: how often it is met.
struct RowStatistics {
  OriginRow decision;
  IterationSeries frequency;
};

/// The shares by the best pair (see BestPairShares and RatiosToAssigned), column by column.
struct IterationTable {
  std::vector<IterationSeries> columns;
  std::vector<IterationSeries> ratios;  ///< none where the flow tells none
};

/// What the iterations of a subset of loci tell of one class of origin, or of all classes together.
/// An estimated probability of one origin belongs here, as an IterationSeries: its value in every
/// iteration and, in the spread, what follows over the iterations.
struct OriginStatistics {
  std::int32_t offspring = 0;  ///< in an iteration

  /// A class without pseudo-offspring: its figures are 0 and mean nothing, reports write "NA". All
  /// classes together are never taken as empty.
  bool is_empty = false;

  std::vector<RowStatistics> rows;          ///< in the order of OriginClass::rows
  IterationSeries correct;                  ///< the frequency of correct decisions
  std::vector<IterationSeries> first_pair;  ///< see FirstPairShares; none in the sexed flow
  IterationTable table;
};

/// The spreads of the columns of a table.
struct TableSpreads {
  std::vector<Spread> columns;
  std::vector<Spread> ratios;
};

TableSpreads SpreadsOf(const IterationTable& table);

/// The statistics of each class of origin in order, and behind them those of all together, whose
/// rows are those of the first class. There is at least one iteration; `weights` has one per class.
std::vector<OriginStatistics> StatisticsByOrigin(const SimulationDesign& design,
                                                 std::span<const double> weights,
                                                 Iterations iterations);

/// The tables alone, in the same order.
std::vector<IterationTable> TablesByOrigin(const SimulationDesign& design,
                                           std::span<const double> weights, Iterations iterations);

}  // namespace kaldo

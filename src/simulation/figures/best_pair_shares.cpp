// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/best_pair_shares.h"

#include "simulation/figures/weighted.h"

namespace kaldo {

std::vector<double> BestPairShares(Flow flow, const ClassCounts& counts) {
  const auto single = [&counts](SideCode true_parents) {
    return counts.Share(counts.single_pair.at(true_parents));
  };
  const double several = counts.Share(counts.ambiguous);
  const double none = counts.Share(counts.nulls);
  if (flow == Flow::kNonSexed) {
    return {single(2), single(1), single(0), several, none};
  }
  const double right = single(3);
  const double male = single(1);
  const double female = single(2);
  const double wrong = single(0);
  return {right,          male + female + wrong, right + male, female + wrong,
          right + female, male + wrong,          several,      none};
}

std::vector<double> GlobalBestPairShares(const SimulationDesign& design,
                                         std::span<const double> weights,
                                         const IterationCounts& counts) {
  std::vector<double> columns(design.table.columns);
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    const std::vector<double> of_class = BestPairShares(design.flow, counts.at(k));
    for (std::size_t column = 0; column < columns.size(); ++column) {
      columns[column] += weights[k] * of_class[column];
    }
  }
  return columns;
}

std::vector<double> RatiosToAssigned(const TableDesign& table, std::span<const double> columns) {
  double assigned = 0;
  for (const double share : columns.first(table.assigned_columns)) {
    assigned += share;
  }
  std::vector<double> ratios;
  for (const double share : columns.first(table.ratios)) {
    ratios.push_back(Ratio(share, assigned));
  }
  return ratios;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/subsets_report.h"

#include <cmath>

#include "runs/tsv_row.h"
#include "simulation/figures/subset_ranking.h"
#include "simulation/reports/estimate_texts.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

void AddNumber(double number, TsvRow& row) {
  row.NumberIfAny(std::isnan(number) ? std::nullopt : std::optional(number));
}

std::string Heads(const std::vector<EstimateScope>& scopes,
                  const std::vector<EstimateKind>& kinds) {
  TsvRow head;
  for (const std::string_view column : {"rank", "run", "size", "loci", "iterations"}) {
    head.Plain(column);
  }
  for (const EstimateScope& scope : scopes) {
    for (const EstimateKind& kind : kinds) {
      const std::string column = scope.column + '_' + kind.column;
      head.Plain(column).Plain(column + "_sd").Plain(column + "_se");
    }
  }
  return head.Line();
}

}  // namespace

std::string SubsetsReport(Flow flow, const LociList& loci, const SimulationResult& result) {
  const auto scopes = EstimateScopes(flow);
  const auto kinds = EstimateKinds(flow);
  std::string text = Heads(scopes, kinds);
  std::size_t rank = 0;
  for (const std::size_t place : RankSubsets(result.subsets)) {
    const SubsetFigures& subset = result.subsets[place];
    TsvRow row;
    row.Whole(++rank).Whole(place + 1).Whole(subset.loci.size());
    row.Text(NamesOf(loci, subset.loci)).Whole(subset.iterations);
    for (std::size_t scope = 0; scope < scopes.size(); ++scope) {
      for (const EstimateKind& kind : kinds) {
        const Estimate& estimate = EstimateOfKind(EstimatesIn(subset.estimates, scope), kind.kind);
        AddNumber(estimate.value, row);
        AddNumber(estimate.deviation, row);
        AddNumber(estimate.error, row);
      }
    }
    text += row.Line();
  }
  return text;
}

}  // namespace kaldo

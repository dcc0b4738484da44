// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/estimate_texts.h"

#include <algorithm>

#include "simulation/reports/simulation_texts.h"

namespace kaldo {

namespace {

// The places of the scopes in front of the classes.
constexpr std::size_t kPopulation = 0;
constexpr std::size_t kPooled = 1;
constexpr std::size_t kFirstClass = 2;

/// A label of the reports without what stands behind it: "C X U :" is "C X U".
std::string ClassName(std::string_view label) {
  return std::string(label.substr(0, label.find_last_not_of(" :") + 1));
}

/// The same as a word: "CxU".
std::string ClassColumn(std::string_view label) {
  std::string column = ClassName(label);
  column.erase(std::remove(column.begin(), column.end(), ' '), column.end());
  std::replace(column.begin(), column.end(), 'X', 'x');
  return column;
}

}  // namespace

std::string ClassName(Flow flow, std::size_t origin) {
  return ClassName(TextsOf(flow).origins.at(origin).label);
}

std::vector<EstimateScope> EstimateScopes(Flow flow) {
  std::vector<EstimateScope> scopes = {
      {"population", "in the population, the classes weighed by their share", "in the population"},
      {"pooled", "of these pseudo-offspring, the classes pooled", "of these pseudo-offspring"}};
  const auto& origins = TextsOf(flow).origins;
  for (std::size_t k = 0; k + 1 < origins.size(); ++k) {
    const std::string name = ClassName(origins[k].label);
    scopes.push_back({ClassColumn(origins[k].label), name, name});
  }
  return scopes;
}

std::vector<EstimateKind> EstimateKinds(Flow flow) {
  const EstimateKind any{AllocationKind::kAny, "any", "any allocation"};
  const EstimateKind uncollected{AllocationKind::kToUncollected, "uncollected",
                                 "allocation to an uncollected parent (UC)"};
  if (flow == Flow::kNonSexed) {
    return {any,
            {AllocationKind::kToFirstSet, "collected", "allocation to a collected parent"},
            uncollected};
  }
  return {any,
          {AllocationKind::kToFirstSet, "male", "allocation to a collected male"},
          {AllocationKind::kToSecondSet, "female", "allocation to a collected female"},
          uncollected};
}

const KindEstimates& EstimatesIn(const ProbabilityEstimates& estimates, std::size_t scope) {
  if (scope == kPopulation) {
    return estimates.population;
  }
  return scope == kPooled ? estimates.pooled : estimates.classes.at(scope - kFirstClass);
}

}  // namespace kaldo

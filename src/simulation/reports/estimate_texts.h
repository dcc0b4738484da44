// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "simulation/figures/probability_estimates.h"

namespace kaldo {

/// The pseudo-offspring to which estimates apply.
struct EstimateScope {
  std::string column;  ///< at the head of a column: "population", "pooled", "CxU"
  std::string words;   ///< "in the population, the classes weighed by their share", "C X U"
  std::string brief;   ///< "in the population"
};

/// A kind of allocation that a flow has.
struct EstimateKind {
  AllocationKind kind;
  std::string column;  ///< "any", "collected", "uncollected"
  std::string words;   ///< "any allocation", "allocation to a collected parent"
};

/// A class of origin by its place, as "C X U".
std::string ClassName(Flow flow, std::size_t origin);

/// The scopes of a flow: population, pooled, and the classes of origin in their order.
std::vector<EstimateScope> EstimateScopes(Flow flow);

/// The kinds of a flow, in order.
std::vector<EstimateKind> EstimateKinds(Flow flow);

/// The estimates of the scope at that place among EstimateScopes().
const KindEstimates& EstimatesIn(const ProbabilityEstimates& estimates, std::size_t scope);

/// One of them.
inline const Estimate& EstimateOfKind(const KindEstimates& estimates, AllocationKind kind) {
  return estimates.at(static_cast<std::size_t>(kind));
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "confidence/explanation_shares.h"
#include "confidence/relations.h"

namespace kaldo {

/// How common the origins of parents are, when relatives count: of the fathers the share
/// `collected[0]` was collected, of the mothers `collected[1]` (without sex both are the same), and
/// of those that were not the share `sibs` are full sibs of a candidate. The two parents of an
/// offspring are independent.
struct OriginShares {
  std::array<double, 2> collected = {0.5, 0.5};
  double sibs = 0.1;
};

/// The share of each combination: the product over both sides of
///
///   collected, (1 - collected) sibs, (1 - collected) (1 - sibs),
///
/// twice as much without sex where the origins differ. A side without candidates is unknown.
ByOrigins<double> Weights(const OriginShares& shares, Flow flow, const WaysOfExplanations& ways);

/// The estimate, with the shares of the explanations that follow from it.
struct RelativesShares {
  OriginShares origins;
  ExplanationShares explanations;
};

/// Estimates the shares from the evidence of each offspring for each combination, up to a factor
/// of its own, by EM as EstimateShares does, from 0.5, 0.5 and 0.1, with the weight of one side at
/// these values as prior of each, until their absolute changes sum to less than `smallest_change`.
/// Without `with_sibs` nobody is a sib.
///
/// The information of the standard error is the sum over the offspring of the products of the
/// slopes of the log likelihood (Berndt, Hall, Hall & Hausman 1974), with the curvature of the
/// prior.
RelativesShares EstimateRelatives(std::span<const ByOrigins<double>> evidence, Flow flow,
                                  const WaysOfExplanations& ways, bool with_sibs,
                                  double smallest_change);

}  // namespace kaldo

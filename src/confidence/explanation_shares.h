// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>

#include "confidence/explanations.h"

namespace kaldo {

/// The shares theta of the explanations among all offspring of a run. A free table: parents of the
/// two sexes may have been collected together, so it is not a product of two shares.
struct ExplanationShares {
  ByExplanation<double> theta;
  int rounds = 0;
  double log_likelihood = 0;  ///< sum over the offspring of ln sum_k theta_k E_k, without the prior

  /// The share of the parents, two per offspring, that was collected:
  /// theta_both + (theta_first + theta_second) / 2.
  double collected = 0;
  /// Where sexes are known the same of the fathers, theta_both + theta_first, and of the mothers.
  std::array<double, 2> collected_by_side{};
  /// The standard error of `collected`; 0 where nobody was collected, and nothing is to be
  /// estimated.
  double standard_error = 0;
};

/// What follows from theta for either side.
std::array<double, 2> CollectedBySide(const ByExplanation<double>& theta);

/// Estimates the shares from the evidence E_k of each offspring for each explanation, up to a
/// factor of its own: likelihoods, means over the ways of the explanation. Offspring that say
/// nothing are left out by the caller.
///
/// EM for the shares of a mixture of known components (Dempster, Laird & Rubin 1977,
/// doi:10.1111/j.2517-6161.1977.tb01600.x), with theta0, equal shares of the open explanations, as
/// start and with the weight of one offspring as prior, so that no share becomes 0 for good:
///
///   r_ok = theta_k E_k(o) / sum over k of the same
///   theta_k <- (sum over o of r_ok + theta0_k) / (n + 1)
///
/// until the absolute changes sum to less than 1e-10, at most 10,000 rounds.
///
/// The standard error is that of the delta method: the curvature, at theta and within shares that
/// sum to 1, of the log likelihood plus sum of theta0_k ln theta_k, is the information on theta.
ExplanationShares EstimateShares(std::span<const ByExplanation<double>> evidence,
                                 const WaysOfExplanations& ways);

}  // namespace kaldo

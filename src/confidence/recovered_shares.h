// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "confidence/explanation_shares.h"
#include "confidence/posterior.h"

namespace kaldo {

/// The shares on which these posteriors rest, found again from them. EstimateShares ends where
/// another round changes nothing any more, so that with r_ok, the posterior of an explanation,
///
///   theta_k = (sum over o of r_ok + theta0_k) / (n + 1)
///
/// over the n offspring that are typed and can be explained. It is as exact as the posteriors are.
/// Where sexes are known they tell of either side alone whether its parent was collected: then
/// theta itself is not known, and NaN. So is what the estimation alone knows, its standard error.
///
/// Not for posteriors with relatives, whose shares are estimated otherwise.
ExplanationShares RecoverShares(Flow flow, std::span<const OffspringConfidence> offspring,
                                const WaysOfExplanations& ways);

}  // namespace kaldo

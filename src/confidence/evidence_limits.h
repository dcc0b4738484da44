// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "confidence/evidence.h"

namespace kaldo {

/// What may be left out of the evidence of one offspring under these shares. Pairs with a
/// likelihood below
///
///   tau = delta x (sum over k of theta_k E_k) / theta_both,      delta = 1e-6,
///
/// weigh together less than delta of the offspring's total, however many they are: their mean is
/// below tau. So the sum over the others is exact to a stated bound. Likewise for a candidate with
/// a stranger, with a tenth of delta. `mean` may lack what is not known yet; that only lowers the
/// limits. This program's convention.
EvidenceLimits LimitsFor(const ByExplanation<double>& theta, const ByExplanation<double>& mean);

/// Half of both. Evidence is gathered with half of what its limits allow, so that a small change of
/// the shares does not ask for it anew.
EvidenceLimits HalfOf(const EvidenceLimits& limits);

/// Whether evidence that was gathered with limits of its own leaves out too much under these
/// shares.
bool LeavesOutTooMuch(const Evidence& evidence, const ByExplanation<double>& theta);

}  // namespace kaldo

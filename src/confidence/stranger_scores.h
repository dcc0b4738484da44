// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "confidence/parent_frequencies.h"
#include "method/transmission_matrix.h"

namespace kaldo {

/// What a parent that was not collected gives, on average, for each allele read in an offspring at
/// one locus: by the place of the allele,
///
///   P_R(U) = 2 sum over a of q(a) M'[a][R],
///
/// with q the frequencies among the collected parents. The factor of a locus is linear in the
/// scores of each parent and the two genes of a stranger in Hardy-Weinberg proportions are drawn
/// independently, so the ordinary formula of a pair with these scores is the exact expectation of
/// the likelihood over all strangers.
std::vector<double> StrangerScores(const AlleleFrequencies& frequencies,
                                   const TransmissionMatrix& matrix);

}  // namespace kaldo

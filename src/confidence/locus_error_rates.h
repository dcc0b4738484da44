// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "confidence/confidence_run.h"
#include "confidence/evidence.h"

namespace kaldo {

/// Whether an offspring tells of the error rates: all of up to 1,000, otherwise 1,000 that are
/// spread evenly over the file, which is as exact as an advice needs to be.
bool TellsOfErrorRates(std::size_t offspring, std::size_t of);

/// The share of genes misread at each locus of a run, in its order, without known parents; NaN
/// where the locus has one allele or no offspring is typed.
///
/// Whatever the model of the run, every locus gets a Uniform matrix with a rate of its own, 0.01 to
/// begin with. Each score is split into what is read right (the diagonal of the matrix) and what is
/// misread, so that the factor of a locus is f0 + f1 + f2, with none, one or both genes of the
/// offspring misread. With m the sum of
///
///   posterior of the explanation x (f1 + 2 f2) / (f0 + f1 + f2)
///
/// over offspring and explanations and g the genes typed, two per offspring, the next rate is
///
///   (m + 20 x (sum of m / sum of g over the loci)) / (g + 20)         within 0.0001 to 0.5,
///
/// with the shares of the explanations estimated anew each time, until no rate moves by 0.0001, at
/// most 25 times. This program's convention (a step of the EM algorithm, see EstimateShares, with
/// the pooled rate as prior of weight 20).
///
/// Explanations are those listed in `evidence`, by offspring: the most likely ways of each kind
/// stand for all of it, also for those not listed. Ways less likely than a millionth of the best of
/// their kind, and kinds with less than 1e-8 of the evidence of the best kind, are left out.
std::vector<double> EstimateErrorRates(const ConfidenceInput& input, const WaysOfExplanations& ways,
                                       std::span<const Evidence> evidence);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "method/transmission_matrix.h"
#include "simulation/simulation_input.h"

namespace kaldo {

// Errors by steps may lead to a size that the locus does not have: beyond its ends, or into a gap
// of its ladder. A row of the transmission matrix does not hold them, and sums to less than 1. They
// do not happen: the parent's own allele is read (this program's convention).

/// What is read where a draw lies behind all that a row holds: the parent's own allele. For the row
/// of undefined parents, which FillUndefinedRow has filled up to 1 but for rounding, the last one.
AlleleIndex ReadBehindRow(const TransmissionMatrix& matrix, AlleleIndex parental);

/// Fills up the row of undefined parents (see AddUndefinedAllele): an allele drawn from the
/// frequencies is read as itself with what its own row does not hold.
void FillUndefinedRow(std::span<const double> frequencies, TransmissionMatrix& matrix);

/// The share of the errors wanted by a model of steps that leave a ladder of sizes and so do not
/// happen, 0 to 1: the mean over alleles of these frequencies, which sum to 1. Nothing where the
/// model has no steps or wants no error.
std::optional<double> OffLadderShare(const ErrorModel& model,
                                     std::span<const AlleleSize> sorted_sizes,
                                     std::span<const double> frequencies);

/// The same of every locus of the list, by its place; nothing at loci not in use. The ladder is
/// that of all parents of the files and samples, the frequencies are those of the parents who have
/// the pseudo-offspring. (An iteration that misses rare sizes has a shorter ladder.)
std::vector<std::optional<double>> OffLadderShares(const SimulationSettings& settings,
                                                   const SimulationInput& input);

}  // namespace kaldo

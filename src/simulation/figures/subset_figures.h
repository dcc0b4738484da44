// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulation/figures/allocation_figures.h"
#include "simulation/figures/origin_statistics.h"
#include "simulation/figures/probability_estimates.h"
#include "simulation/locus_subsets.h"

namespace kaldo {

/// What a simulation found with one subset of loci. There may be a million of them, so that nothing
/// of the single iterations is kept.
struct SubsetFigures {
  LocusSubset loci;                    ///< in order of entry
  std::int32_t iterations = 0;         ///< that were run with it
  AllocationFigures average;           ///< weighted over the classes, averaged over the iterations
  CorrectProbabilities probabilities;  ///< that follow from the averages
  ProbabilityEstimates estimates;      ///< the same and others, with how exact they are

  /// Where wanted, of each class of origin in order and of all together; else empty.
  std::vector<TableSpreads> tables;
};

}  // namespace kaldo

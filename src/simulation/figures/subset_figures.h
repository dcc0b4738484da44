// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulation/figures/allocation_figures.h"
#include "simulation/figures/origin_statistics.h"
#include "simulation/locus_subsets.h"

namespace kaldo {

/// What a simulation found with one subset of loci. There may be a million of them, so that nothing
/// of the single iterations is kept.
struct SubsetFigures {
  LocusSubset loci;                    ///< in order of entry
  AllocationFigures average;           ///< weighted over the classes, averaged over the iterations
  CorrectProbabilities probabilities;  ///< that follow from the averages

  /// Where wanted, of each class of origin in order and of all together; else empty.
  std::vector<TableSpreads> tables;
};

}  // namespace kaldo

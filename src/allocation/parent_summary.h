// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "allocation/allocation_run.h"

namespace kaldo {

/// What is allocated to one collected parent.
struct ParentSummary {
  Slot slot;
  std::size_t offspring = 0;         ///< allocated to it
  std::size_t mates = 0;             ///< collected parents with whom it has some of them
  std::size_t with_uncollected = 0;  ///< offspring whose other parent is UC

  /// The sum of the probabilities of these allocations, as "/Confidence.tsv" tells them: so many of
  /// the offspring are expected to be its own. None without probabilities.
  std::optional<double> expected_offspring;

  std::size_t named = 0;  ///< offspring of which it is named a parent, see NamedParents
};

/// All collected parents in the order of their files, without separators.
std::vector<ParentSummary> SummariesOfParents(Flow flow, const AllocationInput& input,
                                              const AllocationResult& result);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <tl/expected.hpp>

#include "allocation/allocation_run.h"
#include "allocation/allocation_settings.h"
#include "simulation/simulation_run.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// A simulation like an allocation.
struct Trial {
  SimulationSettings settings;

  /// Where fewer parents are drawn than the estimate asks for: how many, and why. Else empty.
  std::string note;
};

/// A simulation that tells how far a finished allocation can be trusted: the parental procedure
/// with its collected parents, loci, model of error and tolerance, allocated with the same model,
/// and as many parents that were not collected as the posteriors estimate. They are drawn from the
/// alleles of the collected ones, and pseudo-offspring miss as many loci as the offspring do.
///
/// Of males c is the share of fathers that was collected, both + only the father, of females alike,
/// and without sexes the share of all parents; to n that were collected come n (1 - c) / c others,
/// in whole numbers and at most kMostUncollected times n. No more than kMaxIndividuals parents are
/// in an iteration; where these would be more, fewer are drawn of either set, in proportion. The
/// error says why there is none: no posteriors, or groups of parents, which simulations do not
/// have.
tl::expected<Trial, std::string> TrialOf(const AllocationSettings& settings,
                                         const AllocationInput& input,
                                         const AllocationResult& result);

inline constexpr double kMostUncollected = 20;  ///< times as many as were collected

/// What came out, for the results of that allocation: "A simulation like this run ...".
std::string TrialSentence(const SimulationSettings& settings, const SimulationResult& result);

}  // namespace kaldo

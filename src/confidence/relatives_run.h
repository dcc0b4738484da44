// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include "confidence/confidence_portions.h"
#include "confidence/confidence_run.h"

namespace kaldo {

/// Whether so few pairs are to be looked at that a run without relatives tests whether they matter.
bool IsRelativesTestQuick(const ConfidenceInput& input, const WaysOfExplanations& ways);

/// What a run finds out when relatives count.
struct RelativesFindings {
  RelativesShares shares;

  /// By how much the log likelihood of all offspring exceeds that without sibs, each at its own
  /// shares. Where the gain alone is wanted, two sibs are valued roughly to begin with, by the
  /// product of what either is worth with a stranger; a gain below 2 is that rough one.
  double gain = 0;

  /// Of every offspring under these shares; empty unless `settings.relatives`.
  std::vector<RelativesEvidence> evidence;
};

/// Gathers the evidence with relatives, estimates the shares and gathers again what left out too
/// much, as ComputeConfidence does. Where the settings do not ask for relatives the gain alone is
/// wanted: it is right to 0.1.
RelativesFindings FindRelatives(const ConfidenceSettings& settings, const ConfidenceInput& input,
                                const EvidenceTask& task, Workforce& workforce,
                                RunObserver& observer, const std::function<RunRecord()>& record);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "confidence/confidence_run.h"

namespace kaldo {

/// The sides of all offspring, two each, counted by how sure they are.
struct ConfidenceSummary {
  std::size_t surely_named = 0;  ///< named with kSureLevel or more
  std::size_t named = 0;         ///< the others that are named
  std::size_t open = 0;
  std::size_t uncollected = 0;

  /// How many of the named sides are expected to be wrong: the sum of 1 - p.
  double wrong_names = 0;

  // The sides to which the allocation gives a collected parent.
  std::size_t reported = 0;
  std::size_t reported_improbable = 0;  ///< with a probability below kImprobable
  double wrong_reported = 0;            ///< expected to be wrong

  std::size_t Named() const { return surely_named + named; }
  std::size_t Sides() const { return Named() + open + uncollected; }
};

/// A name that is less probable than this is more probably wrong than right.
inline constexpr double kImprobable = 0.5;

/// `reported` is what the posteriors were asked about, one per offspring, or empty.
ConfidenceSummary SummaryOf(std::span<const OffspringConfidence> offspring,
                            std::span<const ReportedParents> reported);

/// How many sides are how sure, and how many names are expected to be wrong, in one sentence.
std::string SidesSentence(const ConfidenceSummary& sides);

}  // namespace kaldo

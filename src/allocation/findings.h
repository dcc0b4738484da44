// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "allocation/allocation_run.h"
#include "confidence/certainty.h"

namespace kaldo {

/// True where posteriors were computed.
bool KnowsCertainty(const AllocationResult& result);

/// What is known of the certainty of one offspring, counted from 0 in its file; nothing where no
/// posteriors were computed.
const OffspringConfidence* ConfidenceIn(const AllocationResult& result, std::size_t offspring);

/// An offspring to be looked at, by its place in the file, and why.
struct OffspringToCheck {
  std::size_t place = 0;
  Doubt doubt = Doubt::kOpen;
};

/// What a geneticist wants to know first.
struct AllocationFindings {
  bool knows_certainty = false;    ///< posteriors were computed
  bool certainty_is_lost = false;  ///< they were, but their report cannot be used
  std::size_t offspring = 0;

  /// Offspring of whom both parents are named; without posteriors those that are allocated to two
  /// collected parents.
  std::size_t both_collected = 0;

  /// The most serious doubts first, then in file order; empty without posteriors.
  std::vector<OffspringToCheck> to_check;
};

AllocationFindings FindingsOf(const AllocationResult& result);

/// A probability for the eye, with three digits; what they cannot tell from nothing is not nothing:
/// "0.203", "<0.001".
std::string ProbabilityText(double probability);

/// Why an offspring is to be looked at, in words: "Adult36 has a probability of 0.203 only".
std::string DoubtText(const AllocationInput& input, const AllocationResult& result, Flow flow,
                      const OffspringToCheck& check);

/// "32 of 50 offspring have both parents in your files; 3 need a look."
std::string FindingsSentence(const AllocationFindings& findings);

/// What the names of the classes stand for.
std::string_view ClassLegend(Flow flow);

/// True where several pairs explain the offspring equally well, so that the order of the files
/// decided.
bool HasSeveralPairs(const AllocationOutcome& outcome);

/// True where what the class of an offspring says is not settled: several pairs are equally likely,
/// or a side is open.
bool IsTiedOrOpen(const AllocationResult& result, std::size_t offspring);

}  // namespace kaldo

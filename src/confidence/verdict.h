// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace kaldo {

/// What can be said about one parent of an offspring at the wanted level of confidence.
enum class Verdict {
  kNamed = 0,        ///< it is the most probable candidate
  kUncollected = 1,  ///< it was not collected
  kOpen = 2,         ///< neither is probable enough
};

/// "named", "uncollected" or "open".
std::string_view Label(Verdict verdict);

/// The level unless something else is said: four of five verdicts near it are right.
inline constexpr double kDefaultConfidenceLevel = 0.8;

/// Verdicts at this level can be relied on one by one: one of twenty near it is wrong.
inline constexpr double kSureLevel = 0.95;

/// A level lies between 0.5 and 1: below it, two contradicting verdicts could both be reached.
bool IsConfidenceLevel(double level);

/// Named where the candidate, uncollected where its absence is at least as probable as the level.
/// Where both are, as only at a level of one half, the more probable, and at equality named.
Verdict DecideVerdict(double p_candidate, double p_uncollected, double level);

}  // namespace kaldo

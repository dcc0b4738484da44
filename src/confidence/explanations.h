// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <tuple>

#include "method/allowed_pairs.h"

namespace kaldo {

/// Which parents of an offspring were collected. In the non-sexed flow one collected parent is one
/// explanation, kFirst, and kSecond is never open.
enum class Explanation {
  kBoth = 0,
  kFirst = 1,   ///< only the father, or only one parent
  kSecond = 2,  ///< only the mother
  kNone = 3,
};

inline constexpr std::array<Explanation, 4> kAllExplanations = {
    Explanation::kBoth, Explanation::kFirst, Explanation::kSecond, Explanation::kNone};

/// One value for each explanation.
template <typename Value>
class ByExplanation {
 public:
  constexpr Value& operator[](Explanation e) { return values_[static_cast<std::size_t>(e)]; }
  constexpr const Value& operator[](Explanation e) const {
    return values_[static_cast<std::size_t>(e)];
  }

  static auto Fields(auto& self) { return std::tie(self.values_); }

  friend bool operator==(const ByExplanation&, const ByExplanation&) = default;

 private:
  std::array<Value, kAllExplanations.size()> values_{};
};

/// In how many ways each explanation can be true: pairs that may have met, candidates of the side
/// that was collected, and one way in which nobody was. All ways are equally probable beforehand.
/// An explanation with no way is closed. Every candidate of every group counts, also one without
/// partners.
using WaysOfExplanations = ByExplanation<double>;

WaysOfExplanations CountWays(Flow flow, std::span<const CandidateGroup> groups);

/// The same for an offspring of which more is known: over the allowed pairs and the candidates in
/// their groups. A known parent was collected, so that explanations without it are closed.
WaysOfExplanations CountWays(Flow flow, std::span<const CandidateGroup> groups,
                             const AllowedPairs& allowed);

/// Equal shares of the explanations that are open.
ByExplanation<double> EqualShares(const WaysOfExplanations& ways);

}  // namespace kaldo

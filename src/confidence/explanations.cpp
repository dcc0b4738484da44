// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/explanations.h"

namespace kaldo {

WaysOfExplanations CountWays(Flow flow, std::span<const CandidateGroup> groups) {
  return CountWays(flow, groups, {});
}

WaysOfExplanations CountWays(Flow flow, std::span<const CandidateGroup> groups,
                             const AllowedPairs& allowed) {
  const GroupsToSum own(flow, groups, allowed);
  const bool sexed = flow == Flow::kSexed;
  const bool known = allowed.known_parent.has_value();
  WaysOfExplanations ways;
  for (const CandidateGroup& group : own.Groups()) {
    const auto first = static_cast<double>(allowed.CountIn(group.first));
    const auto second = static_cast<double>(allowed.CountIn(group.second));
    const double pairs = sexed ? first * second : first * (second - 1);
    ways[Explanation::kBoth] += own.SidesAreOne() ? pairs / 2 : pairs;
    ways[Explanation::kFirst] += sexed && known ? 0 : first;
    ways[Explanation::kSecond] += sexed ? second : 0;
  }
  ways[Explanation::kNone] = known ? 0 : 1;
  return ways;
}

ByExplanation<double> EqualShares(const WaysOfExplanations& ways) {
  double open = 0;
  for (const Explanation k : kAllExplanations) {
    open += ways[k] > 0 ? 1 : 0;
  }
  ByExplanation<double> shares;
  for (const Explanation k : kAllExplanations) {
    shares[k] = ways[k] > 0 ? 1 / open : 0;
  }
  return shares;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/explanations.h"

namespace kaldo {

WaysOfExplanations CountWays(Flow flow, std::span<const CandidateGroup> groups) {
  WaysOfExplanations ways;
  for (const CandidateGroup& group : groups) {
    const auto first = static_cast<double>(group.first.Size());
    const auto second = static_cast<double>(group.second.Size());
    const bool sexed = flow == Flow::kSexed;
    ways[Explanation::kBoth] += sexed ? first * second : first * (first - 1) / 2;
    ways[Explanation::kFirst] += first;
    ways[Explanation::kSecond] += sexed ? second : 0;
  }
  ways[Explanation::kNone] = 1;
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

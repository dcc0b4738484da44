// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/relations.h"

namespace kaldo {

namespace {

constexpr auto kCollected = Origin::kCollected;
constexpr auto kSib = Origin::kSib;
constexpr auto kUnknown = Origin::kUnknown;

constexpr std::array<Origins, 9> kSexed = {{{kCollected, kCollected},
                                            {kCollected, kSib},
                                            {kSib, kCollected},
                                            {kSib, kSib},
                                            {kCollected, kUnknown},
                                            {kUnknown, kCollected},
                                            {kSib, kUnknown},
                                            {kUnknown, kSib},
                                            {kUnknown, kUnknown}}};

constexpr std::array<Origins, 6> kNonSexed = {{{kCollected, kCollected},
                                               {kCollected, kSib},
                                               {kSib, kSib},
                                               {kCollected, kUnknown},
                                               {kSib, kUnknown},
                                               {kUnknown, kUnknown}}};

}  // namespace

std::span<const Origins> AllOrigins(Flow flow) {
  return flow == Flow::kSexed ? std::span<const Origins>(kSexed)
                              : std::span<const Origins>(kNonSexed);
}

ByOrigins<double> CountWaysOfOrigins(Flow flow, const WaysOfExplanations& ways,
                                     bool has_known_parent) {
  ByOrigins<double> counts;
  for (const Origins o : AllOrigins(flow)) {
    const Origin of_known = flow == Flow::kSexed ? o.second : o.first;
    if (has_known_parent && of_known != kCollected) {
      continue;
    }
    if (o.first == kUnknown || o.second == kUnknown) {
      const bool both = o.first == o.second;
      counts[o] =
          both ? 1 : ways[o.second == kUnknown ? Explanation::kFirst : Explanation::kSecond];
    } else {
      // Without sex a candidate and a sib can change places.
      const bool ordered = flow == Flow::kNonSexed && !has_known_parent && o.first != o.second;
      counts[o] = (ordered ? 2 : 1) * ways[Explanation::kBoth];
    }
  }
  return counts;
}

}  // namespace kaldo

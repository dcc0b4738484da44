// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/evidence_limits.h"

#include <limits>

namespace kaldo {

namespace {

constexpr double kShareOfPairs = 1e-6;
constexpr double kShareOfCandidates = 1e-7;

double Divided(double weight, double share) {
  // A closed explanation leaves out nothing.
  return share > 0 ? weight / share : std::numeric_limits<double>::max();
}

}  // namespace

EvidenceLimits LimitsFor(const ByExplanation<double>& theta, const ByExplanation<double>& mean) {
  double total = 0;
  for (const Explanation k : kAllExplanations) {
    total += theta[k] * mean[k];
  }
  return {Divided(kShareOfPairs * total, theta[Explanation::kBoth]),
          Divided(kShareOfCandidates * total,
                  theta[Explanation::kFirst] + theta[Explanation::kSecond])};
}

EvidenceLimits HalfOf(const EvidenceLimits& limits) {
  return {limits.pairs / 2, limits.candidates / 2};
}

bool LeavesOutTooMuch(const Evidence& evidence, const ByExplanation<double>& theta) {
  if (!evidence.fixed.is_typed) {
    return false;
  }
  const EvidenceLimits allowed = LimitsFor(theta, evidence.fixed.mean);
  return evidence.fixed.limits.pairs > allowed.pairs ||
         evidence.fixed.limits.candidates > allowed.candidates;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/settled_parents.h"

#include "allocation/allocation_confidence.h"
#include "allocation/findings.h"

namespace kaldo {

std::vector<std::optional<SettledParents>> SettledParentsIn(Flow flow,
                                                            const AllocationResult& result) {
  std::vector<std::optional<SettledParents>> settled(result.outcomes.size());
  const std::vector<ReportedParents> reported = ReportedBy(flow, result);
  for (std::size_t place = 0; place < settled.size(); ++place) {
    const AllocationOutcome& outcome = result.outcomes[place];
    if (const OffspringConfidence* const confidence = ConfidenceIn(result, place)) {
      settled[place] = SettledBy(*confidence);
    } else if (outcome.HasPair() && !HasSeveralPairs(outcome)) {
      settled[place] = SettledParents{reported[place], std::nullopt};
    }
  }
  return settled;
}

}  // namespace kaldo

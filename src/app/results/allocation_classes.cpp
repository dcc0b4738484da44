// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/allocation_classes.h"

#include <algorithm>

#include "app/base/text.h"

namespace kaldo {

std::vector<QString> ClassNames(Flow flow) {
  if (flow == Flow::kSexed) {
    return {Text("CM + CF"), Text("CM + UCF"), Text("UCM + CF"), Text("UCM + UCF")};
  }
  return {Text("2 C"), Text("C + UC"), Text("2 UC")};
}

std::vector<double> ClassNumbers(Flow flow, const AllocationCounters& counters) {
  if (flow == Flow::kSexed) {
    return {counters.both_collected, counters.only_par1_collected, counters.only_par2_collected,
            counters.none_collected};
  }
  return {counters.both_collected, counters.OneCollected(), counters.none_collected};
}

std::size_t ClassOf(Flow flow, const AllocationOutcome& outcome) {
  AllocationCounters counters;
  counters.Count(outcome);
  const std::vector<double> numbers = ClassNumbers(flow, counters);
  return static_cast<std::size_t>(std::max_element(numbers.begin(), numbers.end()) -
                                  numbers.begin());
}

bool HasSeveralPairs(const AllocationOutcome& outcome) {
  return outcome.Pairs().size() > 1 || outcome.more_than_five;
}

}  // namespace kaldo

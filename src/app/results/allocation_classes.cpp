// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/allocation_classes.h"

#include <algorithm>

#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

std::vector<QString> ClassNames(Flow flow) {
  std::vector<QString> names;
  for (const std::string_view name : PairClassNames(flow)) {
    names.push_back(Text(name));
  }
  return names;
}

std::size_t ClassOf(Flow flow, const AllocationOutcome& outcome) {
  AllocationCounters counters;
  counters.Count(outcome);
  const std::vector<double> numbers = PairClassNumbers(flow, counters);
  return static_cast<std::size_t>(std::max_element(numbers.begin(), numbers.end()) -
                                  numbers.begin());
}

QString CertaintyText(Certainty certainty) {
  return Text(Sign(certainty)) + Text(" ") + TrCore(Word(certainty));
}

}  // namespace kaldo

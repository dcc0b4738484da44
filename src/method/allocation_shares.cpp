// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/allocation_shares.h"

namespace kaldo {

namespace {

/// Offspring of which one given parent was collected, whether the other was or not.
AllocationShare CollectedParent(std::string_view name, double only, const AllocationCounters& all) {
  const double n = all.Offspring();
  const double number = all.both_collected + only;
  return {name, number, all.both_collected / n + only / n, number / n};
}

AllocationShare SidesCollected(const AllocationCounters& all) {
  const double n = all.Offspring();
  const double number = 2 * all.both_collected + all.OneCollected();
  return {"sides collected", number, (2 * all.both_collected / n + all.OneCollected() / n) * 0.5,
          number / (2 * n)};
}

}  // namespace

std::vector<std::string_view> PairClassNames(Flow flow) {
  if (flow == Flow::kSexed) {
    return {"CM + CF", "CM + UCF", "UCM + CF", "UCM + UCF"};
  }
  return {"2 C", "C + UC", "2 UC"};
}

std::vector<double> PairClassNumbers(Flow flow, const AllocationCounters& counters) {
  if (flow == Flow::kSexed) {
    return {counters.both_collected, counters.only_par1_collected, counters.only_par2_collected,
            counters.none_collected};
  }
  return {counters.both_collected, counters.OneCollected(), counters.none_collected};
}

AllocationShares SharesOf(Flow flow, const AllocationCounters& counters) {
  AllocationShares shares;
  const AllocationShare sides = SidesCollected(counters);
  shares.sides_collected = sides.share;
  if (flow == Flow::kSexed) {
    shares.singles = {CollectedParent("collected male", counters.only_par1_collected, counters),
                      CollectedParent("collected female", counters.only_par2_collected, counters)};
  } else {
    shares.singles = {sides};
  }
  const std::vector<std::string_view> names = PairClassNames(flow);
  const std::vector<double> numbers = PairClassNumbers(flow, counters);
  for (std::size_t k = 0; k < names.size(); ++k) {
    const double share = numbers[k] / counters.Offspring();
    shares.pairs.push_back({names[k], numbers[k], share, share});
  }
  return shares;
}

}  // namespace kaldo

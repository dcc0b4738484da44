// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/flows/side_code.h"

#include <bit>

namespace kaldo {

SideCode CodeOfSides(Flow flow, bool first_side, bool second_side) {
  const int second_weight = flow == Flow::kSexed ? 2 : 1;
  return static_cast<SideCode>((first_side ? 1 : 0) + (second_side ? second_weight : 0));
}

int NumberOfSides(Flow flow, SideCode sides) {
  return flow == Flow::kSexed ? std::popcount(sides) : int{sides};
}

}  // namespace kaldo

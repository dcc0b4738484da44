// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/origin_class.h"

#include <algorithm>
#include <cassert>

namespace kaldo {

std::size_t OriginClass::RowOf(SideCode allocated, SideCode correct) const {
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const OriginRow& row) {
    return row.allocated == allocated && row.correct == correct;
  });
  assert(found != rows.end() && "every possible decision has a row");
  return static_cast<std::size_t>(found - rows.begin());
}

}  // namespace kaldo

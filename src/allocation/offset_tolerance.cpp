// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/offset_tolerance.h"

namespace kaldo {

ToleranceVerdict CheckTolerance(std::span<const UnitDistances> offsets, OffsetTolerance tolerance) {
  ToleranceVerdict verdict;
  for (const UnitDistances offset : offsets) {
    verdict.errors += offset.Value() != 0 ? 1 : 0;
    verdict.uncollected = verdict.uncollected || offset > tolerance;
  }
  return verdict;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/offset_tolerance.h"

#include <fmt/format.h>

namespace kaldo {

std::optional<Problem> ValidateTolerance(OffsetTolerance tolerance) {
  if (tolerance.Value() >= 0) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kNegativeTolerance,
                 .found = fmt::format("the maximal offset tolerance is {}", tolerance.Value())};
}

ToleranceVerdict CheckTolerance(std::span<const UnitDistances> offsets, OffsetTolerance tolerance) {
  ToleranceVerdict verdict;
  for (const UnitDistances offset : offsets) {
    verdict.errors += offset.Value() != 0 ? 1 : 0;
    verdict.uncollected = verdict.uncollected || ExceedsTolerance(offset, tolerance);
  }
  return verdict;
}

}  // namespace kaldo

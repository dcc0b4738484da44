// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/locus_fit.h"

namespace kaldo {

LocusFit FitOf(const LocusComparison& locus, UnitDistances offset, OffsetTolerance tolerance) {
  if (locus.offspring.IsMissing()) {
    return LocusFit::kUnsaid;
  }
  if (locus.condition == LocusCondition::kOneToEach) {
    return LocusFit::kUnmeasured;
  }
  if (offset.Value() == 0) {
    return LocusFit::kExact;
  }
  return ExceedsTolerance(offset, tolerance) ? LocusFit::kExcluded : LocusFit::kTolerated;
}

}  // namespace kaldo

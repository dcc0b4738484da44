// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "method/locus_comparison.h"
#include "method/offset_tolerance.h"

namespace kaldo {

/// How well one parent explains an offspring at one locus.
enum class LocusFit {
  kUnsaid,      ///< the locus is missing in the offspring
  kExact,       ///< what it should have transmitted is there
  kUnmeasured,  ///< both parents carry the same allele; the other one comes from nowhere
  kTolerated,   ///< an offset, not above the tolerance: a presumed error
  kExcluded,    ///< an offset above the tolerance: the parent is UC
};

/// `offset` is that of the parent in question.
LocusFit FitOf(const LocusComparison& locus, UnitDistances offset, OffsetTolerance tolerance);

}  // namespace kaldo

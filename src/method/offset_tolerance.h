// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>

#include "base/problem.h"
#include "genotypes/units.h"

namespace kaldo {

/// The "Maximal offset tolerance": the largest offset, in whole unit distances, that is taken for a
/// typing error rather than for a sign that the parent is not among the collected ones.
using OffsetTolerance = UnitDistances;

/// A tolerance is never negative.
std::optional<Problem> ValidateTolerance(OffsetTolerance tolerance);

/// The rule of the tolerance: an offset greater than it rejects the parent at that locus; one of
/// exactly the tolerance is accepted.
constexpr bool ExceedsTolerance(UnitDistances offset, OffsetTolerance tolerance) {
  return offset > tolerance;
}

/// What the offsets of one parent over the loci in use say about it.
struct ToleranceVerdict {
  bool uncollected = false;  ///< some offset exceeds the tolerance: the parent is UC
  int errors = 0;            ///< loci with an offset other than 0
};

/// Judges a parent by its offsets at the loci in use, in any order. An accepted offset other than 0
/// is an error, and so is one that rejects the parent.
ToleranceVerdict CheckTolerance(std::span<const UnitDistances> offsets, OffsetTolerance tolerance);

}  // namespace kaldo

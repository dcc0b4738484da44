// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>

#include "base/problem.h"
#include "genotypes/units.h"

namespace kaldo {

/// The "Maximal offset tolerance": the largest offset, in whole unit distances of the locus, that
/// is taken for a typing error rather than for a sign that the true parent is not among the
/// collected ones. 0 forgives nothing, 1 a shift by one repeat. It holds for all loci alike; which
/// one to choose is told in docs/method.md.
using OffsetTolerance = UnitDistances;

/// A negative tolerance, which would reject parents that fit everywhere, is a Problem.
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

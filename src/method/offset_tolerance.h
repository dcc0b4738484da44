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

/// What the offsets of one parent over the loci in use say about it.
struct ToleranceVerdict {
  bool uncollected = false;  ///< some offset is larger than the tolerance: the parent is UC
  int errors = 0;            ///< loci with an offset other than 0
};

/// An offset of exactly the tolerance is accepted, and counted as an error.
ToleranceVerdict CheckTolerance(std::span<const UnitDistances> offsets, OffsetTolerance tolerance);

}  // namespace kaldo

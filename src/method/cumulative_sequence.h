// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/problem.h"
#include "genotypes/units.h"

namespace kaldo {

// The cumulative sequence of loci repeats a run with the first locus, the first two, and so on: it
// shows how many loci an allocation needs. Its indices are as users type them, one per locus of the
// names-of-loci file: the position, counted from 1, at which that locus enters.

/// The indices 1, 2, ..., n: the loci enter in file order.
std::vector<std::int32_t> FileOrderSequence(std::size_t number_of_loci);

/// Tests the positions at which the loci enter the sequence, one per locus of the file: none is 0,
/// none exceeds the number of loci, and they sum to 1 + 2 + ... + n. Only the sum is tested, so
/// that two loci may share a position: 2, 2, 2 is a sequence of three loci (this program's
/// convention; such loci enter in file order). The Problem found tells the first index at fault, or
/// the sum.
std::optional<Problem> CheckSequence(std::span<const std::int32_t> indices,
                                     std::size_t number_of_loci);

/// The loci in use in the order in which they enter: by their index, those of equal index in file
/// order. Combination k of a run is the first k of them. `indices` has one for every locus of the
/// file, also for those not in use, and must have passed CheckSequence.
std::vector<LocusIndex> OrderOfEntry(std::span<const LocusIndex> loci_in_use,
                                     std::span<const std::int32_t> indices);

}  // namespace kaldo

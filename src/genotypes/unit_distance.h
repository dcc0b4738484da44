// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <vector>

#include "genotypes/units.h"

namespace kaldo {

/// The allelic distances of a locus: the differences between neighbouring sizes of its sorted
/// catalogue, in base pairs, from the shortest alleles to the longest; one fewer than there are
/// sizes. All are positive, since a catalogue lists no size twice.
std::vector<BasePairs> AllelicDistances(std::span<const AlleleSize> sorted_sizes);

/// The unit distance of a locus: the smallest of its allelic distances, in base pairs. It stands
/// for the repeat unit of the microsatellite: 2 at a dinucleotide locus whose alleles are in step.
/// This program takes it from the data, because the repeat unit of a locus is not always known and
/// sizes of one laboratory may be binned otherwise than those of another.
///
/// A locus with a single size has no allelic distance. It gets 0 minus that size, a negative number
/// that the reports show as it is; a locus without any size gets 0. Whoever divides by the unit
/// distance must therefore ask whether it is positive.
BasePairs UnitDistance(std::span<const AlleleSize> sorted_sizes);

/// The note on a locus in the reports: "(Unit distance = 2    <=>  Di)", likewise Tri and Tetra, or
/// "(Unit distance = 5 )" without a word for it.
std::string UnitDistanceNote(BasePairs unit_distance);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "genotypes/units.h"

namespace kaldo {

/// The unit distance of a locus: the smallest difference between neighbouring sizes of its sorted
/// catalogue, in base pairs; 2 at a dinucleotide locus whose alleles are in step. A locus with a
/// single size has no difference; it gets 0 minus that size, a negative number, which marks it in
/// the reports.
BasePairs UnitDistance(std::span<const AlleleSize> sorted_sizes);

/// The note on a locus in the reports: "(Unit distance = 2    <=>  Di)", likewise Tri and Tetra, or
/// "(Unit distance = 5 )" without a word for it.
std::string UnitDistanceNote(BasePairs unit_distance);

}  // namespace kaldo

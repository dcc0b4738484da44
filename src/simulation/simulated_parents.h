// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulation/pseudo_offspring.h"
#include "simulation/representative_sample.h"

namespace kaldo {

/// Every simulated parent carries this name, with its blank, in the files of individuals.
inline constexpr std::string_view kSimulatedParentName = "unnamed ";

/// The numbers that a simulated parent draws: two per locus of the list.
std::uint64_t DrawsPerParent(std::size_t number_of_loci);

/// Draws the parents of one group, `slots` of the table, from its sample: at every locus two
/// independent alleles, as in a population in Hardy-Weinberg proportions without linkage. Nothing
/// prevents two parents from being alike. Loci not in use, and those at which the sample has no
/// allele, are undefined.
void DrawParents(GenotypeTable& table, SlotRange slots, const RepresentativeSample& sample,
                 LocusFlags in_use, const UnitDraw& draw, RandomNumbers& random);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulation/pseudo_offspring.h"
#include "simulation/representative_sample.h"

namespace kaldo {

/// Every simulated parent carries this name, with its blank, in the files of individuals.
inline constexpr std::string_view kSimulatedParentName = "unnamed ";

/// The numbers that a simulated parent draws: two per locus of the list.
std::uint64_t DrawsPerParent(std::size_t number_of_loci);

/// Draws the parents of one group from its sample: per locus two independent alleles, one after the
/// other. Nothing prevents two parents from being alike.
void DrawParents(GenotypeTable& table, SlotRange slots, const RepresentativeSample& sample,
                 LocusFlags in_use, const UnitDraw& draw, RandomNumbers& random);

}  // namespace kaldo

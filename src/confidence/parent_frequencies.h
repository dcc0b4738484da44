// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "genotypes/genotype_table.h"
#include "method/candidate_groups.h"

namespace kaldo {

/// The frequency q of every catalogued allele of a locus, by its place in the catalogue; they sum
/// to 1.
using AlleleFrequencies = std::vector<double>;

/// The copies of every catalogued allele among the collected parents that are typed at the locus,
/// by its place in the catalogue.
std::vector<double> ParentCopies(std::span<const LocusGenotype> genotypes,
                                 std::span<const SlotRange> parents, std::size_t alleles);

/// The frequencies among the collected parents, both sexes together, where the locus is typed.
/// Every catalogued size gets half a copy more, so that an allele met in offspring only is rare
/// and not impossible (the prior of Jeffreys 1946 for a binomial share, doi:10.1098/rspa.1946.0056,
/// per allele). These are not the counts of the allele listing, which stand under other sizes.
AlleleFrequencies ParentFrequencies(std::span<const LocusGenotype> genotypes,
                                    std::span<const SlotRange> parents, std::size_t alleles);

/// The slots of all collected parents of a run, without separators: every range of every group,
/// each once.
std::vector<SlotRange> RangesOfParents(Flow flow, std::span<const CandidateGroup> groups);

}  // namespace kaldo

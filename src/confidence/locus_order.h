// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "confidence/locus_variability.h"
#include "genotypes/genotype_table.h"
#include "genotypes/loci_list.h"

namespace kaldo {

/// How much a locus tells, from the collected parents that are typed at it. None where nobody is,
/// or where it has more alleles than a run takes.
using LocusInformation = std::optional<ExclusionProbabilities>;

/// The order of loci by what they tell: the one that excludes most random pairs of parents comes
/// first, one of which nothing is known last.
bool TellsMore(const LocusInformation& locus, const LocusInformation& other);

/// Of every locus of a table, in its order. `parents` are the slots of the collected parents; what
/// else is in the table does not count.
std::vector<LocusInformation> InformationOfLoci(const GenotypeTable& table,
                                                std::span<const SlotRange> parents);

/// A cumulative sequence in which the loci enter by what they tell, equals in file order: the
/// position of each, counted from 1.
std::vector<std::int32_t> SequenceByInformation(std::span<const LocusInformation> loci);

/// What that sequence rests on: "By the share of random pairs that each locus excludes: Mar9
/// (0.912), Mar4 (0.850), Mar1 (0.621)."
std::string SequenceSentence(const LociList& names, std::span<const LocusInformation> loci);

}  // namespace kaldo

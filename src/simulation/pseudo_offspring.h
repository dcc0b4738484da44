// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "genotypes/allele_catalogue.h"
#include "genotypes/genotype_table.h"
#include "method/kept_pairs.h"
#include "method/transmission_matrix.h"
#include "simulation/random_numbers.h"
#include "simulation/reading_table.h"

namespace kaldo {

/// Which loci of the list take part in an iteration: one flag per locus of the names-of-loci file.
/// The others consume their draws all the same, so that the stream does not depend on the choice.
using LocusFlags = std::span<const std::uint8_t>;

/// The ranges from which the true parents of a class are drawn.
struct TrueParentRanges {
  SlotRange first;
  SlotRange second;
  bool must_differ = false;  ///< both come from one range: draw both again while they are equal
};

/// Draws the true parents of one pseudo-offspring, the first one first.
ParentPair DrawTrueParents(const TrueParentRanges& ranges, RandomNumbers& random);

/// The numbers that a pseudo-offspring draws behind its parents: four per locus of the list.
std::uint64_t DrawsPerPseudoOffspring(std::size_t number_of_loci);

/// The allele that is read in an offspring for a transmitted parental allele: the first of its row
/// whose running sum is not 0 and reaches `u`, at the latest the last allele of the locus.
AlleleIndex Transmit(const TransmissionMatrix& matrix, AlleleIndex parental, double u);

/// Makes one pseudo-offspring from its true parents, which must be indexed. Per locus the draws
/// are: which allele of the first parent, which of the second, the reading of the first, that of
/// the second. The first parent's allele comes first. `matrices` and `readings` have one per locus
/// of the list; where a table of readings is empty the matrix is walked along.
void ProducePseudoOffspring(GenotypeTable& table, Slot offspring, ParentPair parents,
                            LocusFlags in_use, std::span<const TransmissionMatrix> matrices,
                            std::span<const ReadingTable> readings,
                            std::span<const AlleleCatalogue> catalogues, const UnitDraw& draw,
                            RandomNumbers& random);

}  // namespace kaldo

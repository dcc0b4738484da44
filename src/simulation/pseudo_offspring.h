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

/// The ranges of the parent table from which the true parents of a class are drawn: all parents of
/// a group have the same chance, as if all had equally many offspring.
struct TrueParentRanges {
  SlotRange first;
  SlotRange second;
  bool must_differ = false;  ///< both come from one range: draw both again while they are equal
};

/// Draws the true parents of one pseudo-offspring: a number of the stream for the first, one for
/// the second (sexed: father, then mother), each modulo the size of its range; both again, from the
/// first one on, while they must differ and do not.
ParentPair DrawTrueParents(const TrueParentRanges& ranges, RandomNumbers& random);

/// The numbers that a pseudo-offspring draws behind its parents: four per locus of the list.
std::uint64_t DrawsPerPseudoOffspring(std::size_t number_of_loci);

/// The allele that is read in an offspring for a transmitted parental allele, with `u` from 0 to
/// below 1 drawn: the first of its row of the transmission matrix whose running sum is not 0 and
/// reaches `u`. So an allele of probability 0 is never read for u = 0. What the row does not hold,
/// where a step would leave the ladder of sizes or fall into a gap of it, stays the parent's own
/// allele: there is nothing else as which it could have been read (this program's convention). The
/// row of undefined parents has no allele of its own; see FillUndefinedRow.
AlleleIndex Transmit(const TransmissionMatrix& matrix, AlleleIndex parental, double u);

/// Makes one pseudo-offspring from its true parents, which must be indexed: Mendelian segregation,
/// each allele of a parent with chance 1/2 and independently between loci, and then the
/// transmission error. The first parent's allele comes first. `in_use`, `matrices`, `readings` and
/// `catalogues` have one entry per locus of the names-of-loci file; where a table of readings is
/// empty the matrix is walked along. Loci not in use are undefined in the offspring.
void ProducePseudoOffspring(GenotypeTable& table, Slot offspring, ParentPair parents,
                            LocusFlags in_use, std::span<const TransmissionMatrix> matrices,
                            std::span<const ReadingTable> readings,
                            std::span<const AlleleCatalogue> catalogues, const UnitDraw& draw,
                            RandomNumbers& random);

}  // namespace kaldo

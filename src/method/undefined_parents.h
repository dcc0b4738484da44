// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "genotypes/genotype_table.h"
#include "method/transmission_matrix.h"

namespace kaldo {

// Loci of parents that may be undefined. Such a parent may carry anything, so that it gives what a
// parent drawn from the allele frequencies gives on average,
//
//   P_R = 2 sum over a of q(a) M[a][R],
//
// which is exact under Hardy-Weinberg proportions, since a factor is linear in the scores of each
// parent. It is as if it carried twice an allele of its own, "undefined", that no offspring is read
// with: one more genotype to every search.

/// Gives the matrix of a locus the row of the undefined allele, behind those of all others.
/// `frequencies`: of every allele, see ParentFrequencies.
void AddUndefinedAllele(std::span<const double> frequencies, TransmissionMatrix& matrix);

/// Gives the undefined genotypes among those of the parents the place of that row. `alleles`: of
/// the catalogue by which the others were indexed.
void IndexUndefinedParents(std::span<LocusGenotype> parents, std::size_t alleles);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "genotypes/genotype_table.h"
#include "method/transmission_matrix.h"

namespace kaldo {

/// What a search looks at. It refers to everything and owns nothing: whoever was prepared for a
/// study asks it again at every offspring, so the table, the loci and the matrices must stay where
/// they are and as they are until the last search, or until it is prepared anew. The table must not
/// grow meanwhile.
struct SearchStudy {
  /// An indexed table (see CatalogueAlleles): the collected parents at the slots 0 to `parents` -
  /// 1, separators included, the offspring anywhere.
  const GenotypeTable& table;
  std::size_t parents = 0;

  /// The loci of the run, in file order. "The k-th locus" is a place in this list.
  std::span<const LocusIndex> loci;

  /// One matrix per locus of the names-of-loci file, by LocusIndex.
  std::span<const TransmissionMatrix> matrices;

  /// All individuals at the k-th locus, by slot.
  std::span<const LocusGenotype> Genotypes(std::size_t k) const { return table.Locus(loci[k]); }

  /// The collected parents at the k-th locus, by slot.
  std::span<const LocusGenotype> ParentGenotypes(std::size_t k) const {
    return Genotypes(k).first(parents);
  }

  const TransmissionMatrix& Matrix(std::size_t k) const { return matrices[loci[k].Value()]; }
};

}  // namespace kaldo

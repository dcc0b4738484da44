// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <tl/expected.hpp>

#include "genotypes/allele_catalogue.h"
#include "genotypes/loci_list.h"

namespace kaldo {

/// A locus that brings too many sizes, and the individual that brings the last one.
struct TooManyAlleles {
  LocusIndex locus;
  Slot slot;
};

/// The sorted catalogue of every locus of a table, in the order of the names-of-loci file. A locus
/// not in use has an empty one.
using AlleleCatalogues = std::vector<AlleleCatalogue>;

/// Builds and sorts the catalogues of the loci in use over all slots of the table, and sets the
/// indices of its genotypes.
tl::expected<AlleleCatalogues, TooManyAlleles> CatalogueAlleles(GenotypeTable& table,
                                                                const LociList& loci);

}  // namespace kaldo

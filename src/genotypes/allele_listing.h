// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "genotypes/catalogued_loci.h"

namespace kaldo {

/// The section "LIST OF ALLELES FOR EACH LOCUS": per locus in use the sorted sizes, below them the
/// counts divided by twice the number of individuals (all slots of the table), and their sum. The
/// counts stand in order of first appearance, not below "their" size (see AlleleCatalogue).
std::string AlleleListing(const LociList& loci, const AlleleCatalogues& catalogues,
                          std::size_t number_of_individuals);

}  // namespace kaldo

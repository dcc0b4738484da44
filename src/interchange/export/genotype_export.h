// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <tl/expected.hpp>

#include "allocation/allocation_input.h"
#include "interchange/original_names.h"

namespace kaldo {

// The genotypes of a study in the forms of other programs, with the names before an import.

/// GENEPOP: three digits per allele; each group of parents is a population (sexed: its males,
/// then its females), and the offspring are the last one. Empty groups are left out. Alleles of
/// four digits and a locus called POP are a Problem. A name that holds a comma stands as its code.
tl::expected<std::string, Problem> GenepopText(const AllocationInput& input,
                                               const OriginalNames& names, Flow flow);

/// A table between commas: id, role (parent, offspring), sex (m, f; empty where not known), group
/// (empty for offspring), and two columns per locus, empty where nothing is typed.
std::string GenotypesCsv(const AllocationInput& input, const OriginalNames& names, Flow flow);

}  // namespace kaldo

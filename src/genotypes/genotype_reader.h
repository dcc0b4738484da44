// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "genotypes/genotype_table.h"
#include "genotypes/loci_list.h"
#include "genotypes/record_cursor.h"

namespace kaldo {

/// Appends the individuals of a checked genotype file to `table`, in file order, separators
/// included. The first half of the digits of a field is allele 1, the second half allele 2. A locus
/// that is not in use is missing in every individual. Returns the slots that were filled.
SlotRange AppendIndividuals(const TokenFile& file, RecordLayout layout, const LociList& loci,
                            GenotypeTable& table);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "genotypes/loci_list.h"
#include "simulation/locus_subsets.h"

namespace kaldo {

/// The names of the loci with one blank between them.
std::string NamesOf(const LociList& loci, const LocusSubset& subset);

/// The framed line that tells how many loci a subset has, and the line that names them.
std::string SubsetTitle(const LociList& loci, const LocusSubset& subset);

/// What titles carry when a report shows the last of several subsets; empty for a single choice.
std::string_view LastCombinationNote(LociStrategy strategy);

}  // namespace kaldo

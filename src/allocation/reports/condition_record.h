// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "method/locus_comparison.h"

namespace kaldo {

/// The end of a locus line in the transmission matrices report: the condition's label, which
/// parental allele should have become which offspring allele, the distances in base pairs beside
/// the unit distance, and the offsets. No line end.
///
/// "[[],[152,154]]" says that parent 1 is exact and that 152 of parent 2 is the allele nearest to
/// the offspring's 154; "dm=2" stands for a smallest distance reached in more than one way.
std::string ConditionRecord(const LocusComparison& locus);

}  // namespace kaldo

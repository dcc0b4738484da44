// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "confidence/locus_quality.h"
#include "genotypes/loci_list.h"

namespace kaldo {

/// "/Loci.tsv": a line for each locus of the run, and a last one, ALL, with the exclusions of all
/// loci together and the means of the other figures. New columns come at the end.
std::string LociReport(const LociList& names, std::span<const LocusQuality> loci);

}  // namespace kaldo

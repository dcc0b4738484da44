// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "genotypes/loci_list.h"

namespace kaldo {

/// The contents of the loci-save file: every name followed by one blank, on one line.
std::string SavedLociText(const LociList& loci);

/// Whether a word of a text is a genotype: digits alone, four or more. A line of names of loci has
/// none, but for a locus that is called so.
bool HoldsGenotypes(std::string_view text);

/// Writes the loci-save file into the working folder: at the end of a simulation, and in the
/// windows when the first screen of a simulation is confirmed. It is a convenience: when it cannot
/// be written the earlier one stays, and so does a file of that name that is no such copy; why
/// comes back as a sentence.
std::optional<std::string> SaveLoci(const LociList& loci);

}  // namespace kaldo

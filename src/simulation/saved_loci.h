// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "genotypes/loci_list.h"

namespace kaldo {

/// The contents of the loci-save file: every name followed by one blank, on one line.
std::string SavedLociText(const LociList& loci);

/// Writes the loci-save file into the working folder, as the windows do when the first screen of a
/// simulation is confirmed. Throws RunFailure when it cannot be written.
void SaveLoci(const LociList& loci);

}  // namespace kaldo

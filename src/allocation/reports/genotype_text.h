// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "genotypes/units.h"

namespace kaldo {

/// The allele filled up with leading "0" to `digits`; a larger one is written whole.
std::string PaddedAllele(AlleleSize allele, std::size_t digits);

/// The text followed by blanks up to twelve bytes, as names stand at the head of a line.
std::string NameField(std::string_view text);

}  // namespace kaldo

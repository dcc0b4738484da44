// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "genotypes/record_cursor.h"

namespace kaldo {

/// A mistake in the layout of a genotype file as a whole, from which faults all over it follow.
struct LayoutHint {
  std::uint32_t line = 0;  ///< where it shows first
  std::string found;       ///< what it looks like, and what is wanted
};

/// Looks for the commonest such mistakes: commas or semicolons between the words, a line of
/// headings, alleles in two columns, a blank in every name, another number of loci. Nothing is
/// found in a file of records, or of something else altogether.
std::optional<LayoutHint> FindLayoutHint(const TokenFile& file, RecordLayout layout);

}  // namespace kaldo

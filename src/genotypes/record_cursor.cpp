// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/record_cursor.h"

#include <algorithm>

namespace kaldo {

TokenCounts CountTokens(std::span<const Token> tokens, RecordLayout layout) {
  TokenCounts counts;
  counts.tokens = tokens.size();
  counts.separators = static_cast<std::size_t>(
      std::count_if(tokens.begin(), tokens.end(),
                    [layout](const Token& token) { return layout.IsSeparator(token.text); }));
  counts.records =
      counts.separators + (counts.tokens - counts.separators) / (layout.number_of_loci + 1);
  return counts;
}

}  // namespace kaldo

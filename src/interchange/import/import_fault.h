// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kaldo {

/// Why a file of another program is not taken, and where to look.
struct ImportFault {
  // Empty or 0 where it does not apply.
  std::string file = {};
  std::uint32_t line = 0;   ///< counted from 1
  std::string column = {};  ///< the head of the column, or the locus
  std::string sample = {};  ///< the name of the individual

  std::string found = {};  ///< what was found there and what to do
};

/// One line for people: `pond.csv, line 12, column "Ssa85.2" (B07): "95.4" is a raw size; ...`.
std::string TextOf(const ImportFault& fault);

/// All that is wrong, so that a file is corrected once and not fault by fault.
struct ImportFaults {
  std::vector<ImportFault> kept;
  std::size_t more = 0;  ///< behind the first 100

  bool IsEmpty() const { return kept.empty(); }
  void Add(ImportFault fault);

  /// A line per fault, and how many more there are.
  std::string Text() const;
};

}  // namespace kaldo

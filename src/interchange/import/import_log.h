// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <vector>

#include "interchange/import/import_fault.h"

namespace kaldo {

/// Lines of a file, told as "2-7, 9".
class LineRanges {
 public:
  /// In rising order; a line may come again.
  void Add(std::uint32_t line);

  std::string Text() const;

 private:
  std::vector<std::pair<std::uint32_t, std::uint32_t>> ranges_;
};

/// What an import met and did on its way, for its report.
struct ImportLog {
  ImportFaults faults;

  std::vector<std::string> warnings;  ///< what should be looked at
  std::vector<std::string> notes;     ///< what was done, one sentence each

  /// What was changed in cells, by file and column: `pond.csv, column "Ssa85.2": 124.0 is 124`.
  std::map<std::string, LineRanges> conversions;

  std::vector<std::string> half_missing;  ///< the first thousands of their places
  std::size_t half_missing_cells = 0;
};

}  // namespace kaldo

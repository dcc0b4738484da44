// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "runs/run_record.h"

namespace kaldo {

/// The files of a folder beside those that a record lists.
struct ResultComparison {
  std::size_t same = 0;                  ///< files with the recorded contents
  std::vector<std::string> differences;  ///< a phrase per file that is otherwise

  bool IsIntact(const RunRecord& record) const {
    return differences.empty() && same > 0 && same == record.outputs.size();
  }
};

/// The paths by which a repeated run calls its files, and those by which the recorded run called
/// them.
using PathsThen = std::map<std::string, std::string, std::less<>>;

/// Compares by size and SHA-256. A file with the name of a result that the record does not list is
/// a difference, too: it is of another run. Other files are the user's own affair. The reports name
/// their files in their first lines; there a path of `then` counts as what it was, so that a study
/// that was moved is still found to give the same results.
ResultComparison CompareResults(const RunRecord& record, const std::string& folder,
                                const PathsThen& then = {});

}  // namespace kaldo

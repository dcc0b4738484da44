// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

#include "base/problem.h"

namespace kaldo {

/// "UC", "--", "none" and "NA": what reports and statistics programs write where there is no
/// parent. A parent of such a name could not be told from none.
bool IsSignOfNoParent(std::string_view name);

/// What a spreadsheet makes of a name that is opened with it: "a date" (MAR1, 1-2), "a number"
/// (00012, 1E5) or "a formula" (=1+1, @SUM). Nothing where the name stays as it is.
std::optional<std::string_view> SpreadsheetReading(std::string_view name);

/// What makes a text unfit for a name in UTF-8 reports: bytes that a terminal would obey, or that
/// are no UTF-8. The Problem has no place yet.
std::optional<Problem> FaultOfName(std::string_view name);

}  // namespace kaldo

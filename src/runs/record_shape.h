// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "base/problem.h"

namespace kaldo {

/// Bytes of a run record; the longest that a run can write has a fiftieth of it.
inline constexpr std::size_t kMostRecordBytes = std::size_t{1} << 20U;

/// Why the text cannot be a run record, told by its size and its outer shape before it is parsed.
/// A record may come from anybody, and a parser of nested data calls itself once per level: 80 kB
/// of dots or brackets would end the program. A record nests lists of plain values and nothing
/// else, so that inline tables, dotted keys and texts over several lines are refused as well.
std::optional<Problem> ShapeFault(std::string_view text);

}  // namespace kaldo

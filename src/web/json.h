// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "interchange/export/export_table.h"

namespace kaldo {

using Json = nlohmann::ordered_json;

/// A number, or null where it is none.
Json FigureJson(double value);

/// What stands in a cell: null, a text, a truth or a number. Names come as a reader may see them.
Json CellJson(const Cell& cell);

/// The table as {"columns": [{"head", "numeric"}], "rows": [[...]]}; a column is numeric where its
/// first known cell is.
Json TableJson(const ExportTable& table);

/// In ASCII, whatever bytes the names hold.
std::string Dumped(const Json& json);

}  // namespace kaldo

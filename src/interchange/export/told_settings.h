// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "interchange/export/export_table.h"
#include "runs/run_record.h"

namespace kaldo {

/// A line of what a run was made with: what is told, and what it was.
using ToldSetting = std::pair<std::string, std::string>;

/// Program, flow, settings, and the names of the files with their checksums. A repeated run tells
/// the same: files are told by their names, not by where they lie, and neither date nor duration.
std::vector<ToldSetting> ToldSettings(const RunRecord& record);

/// The same as a table.
ExportTable SettingsTable(const RunRecord& record);

}  // namespace kaldo

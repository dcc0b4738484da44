// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulation/scan.h"

namespace kaldo {

/// The table of a scan, "Scan.tsv": a line for each simulation, and what the figures mean in the
/// names of its columns.
std::string ScanReport(Flow flow, const std::vector<ScanRow>& rows);

/// The class of a title of the reports, as a column is called: "C X U :" is "CxU".
std::string ClassColumn(std::string_view label);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/reports/simulation_texts.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// Mean and standard deviation of every per-iteration table of one subset, for the end of the
/// summary; empty where they were not wanted.
std::string SubsetStatistics(const SimulationTexts& texts, const LociList& loci,
                             const SubsetFigures& subset);

/// A row of a per-iteration table: a word, the columns, and behind an empty cell the ratios.
std::string TableRow(std::string_view word, std::span<const double> columns,
                     std::span<const double> ratios);

/// The rows of means and of standard deviations below a table.
std::string SpreadRows(const TableSpreads& spreads, std::string_view deviation_word);

/// The heads of the columns, and of the ratios behind "--->" where there are any.
std::string TableHeads(std::string_view word, std::span<const std::string_view> columns,
                       std::span<const std::string_view> ratio_columns, bool has_ratios);

}  // namespace kaldo

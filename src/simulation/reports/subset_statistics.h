// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/figures.h"

namespace kaldo {

/// Mean and standard deviation of every per-iteration table of one subset, for the end of the
/// summary.
std::string SubsetStatistics(const SimulationFlow& flow, const SimulationInput& input,
                             const LocusSubset& loci, Iterations iterations);

/// A row of a per-iteration table: a word, the columns, and behind an empty cell the ratios.
std::string TableRow(std::string_view word, std::span<const double> values, std::size_t columns);

/// The rows of means and of standard deviations below a table.
std::string SpreadRows(const IterationTable& table, std::string_view deviation_word);

/// The heads of the columns, and of the ratios behind "--->" where there are any.
std::string TableHeads(std::string_view word, std::span<const std::string_view> columns,
                       std::span<const std::string_view> ratio_columns);

}  // namespace kaldo

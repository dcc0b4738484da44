// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export/export_table.h"
#include "simulation/simulation_run.h"

namespace kaldo {

inline constexpr std::string_view kIterationsTable = "/Iterations.tsv";

// The tables of a simulation. Input and result must outlive them. New columns come at the end.

/// A row per iteration of the last subset of loci and class of origin, and per iteration one of all
/// classes together.
ExportTable IterationsTable(const SimulationSettings& settings, const SimulationResult& result);

/// A row per subset of loci, in the order in which they ran.
ExportTable SubsetsTable(const SimulationSettings& settings, const SimulationInput& input,
                         const SimulationResult& result);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "runs/report_file.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// "/Summary.xls": parameters, averages, correct frequencies of every iteration, statistics of
/// every class, and the statistics of every subset where they were wanted. Piece by piece: the
/// subsets of many loci fill hundreds of megabytes.
void WriteSummary(const SimulationSettings& settings, const SimulationInput& input,
                  const SimulationResult& result, ReportFile& file);

/// The detailed file: for every iteration, the frequency of each kind of decision and how the
/// frequency of correct ones follows from them.
std::string DetailedReport(const SimulationSettings& settings, const SimulationResult& result);

/// The per-iteration table of one class, or, with the number behind the last class, the global one.
std::string IterationTableReport(const SimulationSettings& settings, const SimulationInput& input,
                                 const SimulationResult& result, std::size_t origin);

/// "/Sequence results.xls": the averages of each combination of a cumulative sequence.
std::string SimulationSequenceReport(const SimulationSettings& settings,
                                     const SimulationInput& input, const SimulationResult& result);

/// A figure; of a class without pseudo-offspring "NA".
std::string FigureText(double value, bool is_empty);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/simulation_run.h"

namespace kaldo {

/// "/Summary.xls": parameters, averages, correct frequencies of every iteration, statistics of
/// every class, and the statistics of every subset where they were wanted.
std::string SummaryReport(const SimulationSettings& settings, const SimulationInput& input,
                          const SimulationFlow& flow, const SimulationResult& result);

/// The detailed file: for every iteration, the frequency of each kind of decision and how the
/// frequency of correct ones follows from them.
std::string DetailedReport(const SimulationInput& input, const SimulationFlow& flow,
                           const SimulationResult& result);

/// The per-iteration table of one class, or, with the number behind the last class, the global one.
std::string IterationTableReport(const SimulationSettings& settings, const SimulationInput& input,
                                 const SimulationFlow& flow, const SimulationResult& result,
                                 std::size_t table_number);

/// "/Sequence results.xls": the averages of each combination of a cumulative sequence.
std::string SimulationSequenceReport(const SimulationSettings& settings,
                                     const SimulationInput& input, const SimulationFlow& flow,
                                     const SimulationResult& result);

/// Stands for every figure of a class without pseudo-offspring.
inline constexpr std::string_view kNotAvailable = "       NA";

}  // namespace kaldo

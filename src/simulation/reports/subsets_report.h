// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/simulation_run.h"

namespace kaldo {

/// "/Subsets.tsv": a line for each subset of loci that was run, the best one first (see
/// RankSubsets), with every estimated probability, its deviation and its standard error. New
/// columns come at the end.
std::string SubsetsReport(Flow flow, const LociList& loci, const SimulationResult& result);

}  // namespace kaldo

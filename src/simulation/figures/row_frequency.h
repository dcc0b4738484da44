// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "simulation/flows/simulation_design.h"
#include "simulation/iteration_counts.h"

namespace kaldo {

/// How often a kind of decision is met in one class in one iteration: its pseudo-offspring as a
/// share of the class; 0 where the class has none, or not that row.
double RowFrequency(const OriginClass& origin, const ClassCounts& counts, const OriginRow& row);

/// The same over all classes: rows of the same sides are pooled, or their frequencies weighted by
/// the share of each class, which `weights` has one per class of.
double GlobalRowFrequency(const SimulationDesign& design, std::span<const double> weights,
                          const IterationCounts& counts, const OriginRow& row);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "simulation/flows/simulation_design.h"
#include "simulation/iteration_counts.h"

namespace kaldo {

/// The frequency of correct decisions of one class in one iteration, 0 to 1: the sum of weight x
/// count over its rows, divided by 2 and by the size of the class; 0 for a class without
/// pseudo-offspring. (This program's convention: a side left as UC is a decision, too, and right
/// where a true parent is missing.)
double CorrectFrequency(const OriginClass& origin, const ClassCounts& counts);

/// The same for all classes of an iteration: pooled, or weighted by the share of each class.
/// `weights` has one per class.
double GlobalCorrectFrequency(const SimulationDesign& design, std::span<const double> weights,
                              const IterationCounts& counts);

}  // namespace kaldo

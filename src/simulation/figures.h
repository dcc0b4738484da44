// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "simulation/simulation_flow.h"
#include "simulation/simulation_input.h"

namespace kaldo {

/// The iterations of one subset of loci.
using Iterations = std::span<const IterationCounts>;

/// A share of what was allocated in some way; 0 where nothing was.
double Ratio(double numerator, double denominator);

/// w1 f1 + w2 f2 + ..., added in the order of the classes.
double Weighed(std::span<const double> weights, std::span<const double> of_classes);

/// The frequency of correct decisions of one class in one iteration: the sum of weight x count over
/// its rows, divided by 2 and by the size of the class; 0 for a class without pseudo-offspring.
double CorrectFrequency(const OriginClass& origin, const ClassCounts& counts);

/// The same for all classes of an iteration: pooled, or weighed by the share of each class.
double GlobalCorrectFrequency(const SimulationDesign& design, const SimulationInput& input,
                              const IterationCounts& counts);

/// The frequency of a row of the first class over all classes: rows of the same sides are pooled,
/// or their frequencies weighed.
double GlobalRowFrequency(const SimulationDesign& design, const SimulationInput& input,
                          const IterationCounts& counts, const OriginRow& row);

/// The weighted figures of a subset, averaged over the iterations.
std::vector<double> WeightedFigures(const SimulationFlow& flow, const SimulationInput& input,
                                    Iterations iterations);

/// A per-iteration table: one row of values per iteration, and the spread of each column.
struct IterationTable {
  std::vector<std::vector<double>> rows;
  std::vector<Spread> spreads;
  std::size_t columns = 0;  ///< values before the ratios; all, where there are none
};

/// The table of one class.
IterationTable TableOfClass(const SimulationFlow& flow, Iterations iterations,
                            std::size_t class_number);

/// The table of the weighted classes, always with ratios.
IterationTable GlobalTable(const SimulationFlow& flow, const SimulationInput& input,
                           Iterations iterations);

/// The spread over the iterations of what `value_of` tells for each.
template <typename ValueOf>
Spread SpreadOver(Iterations iterations, SpreadKind kind, ValueOf value_of) {
  std::vector<double> values;
  values.reserve(iterations.size());
  for (const IterationCounts& counts : iterations) {
    values.push_back(value_of(counts));
  }
  return SpreadOf(values, kind);
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <vector>

#include "simulation/flows/simulation_design.h"
#include "simulation/iteration_counts.h"

namespace kaldo {

/// One kind of single allocation: one side of a decision, given to a parent or left as UC.
/// Non-sexed: shares of all sides, two per pseudo-offspring. Sexed: shares of the pseudo-offspring,
/// each of which has one male and one female side; UC sides add up to at most 2.
struct SingleAllocation {
  double made = 0;   ///< sides that were decided so
  double right = 0;  ///< of these, given to a true parent, or left when a true parent is missing
};

/// The figures that are weighted over the classes of origin. In a class without pseudo-offspring
/// all are 0.
struct AllocationFigures {
  std::array<double, kSideCodes> pairs{};  ///< share of pseudo-offspring, by sides allocated

  /// Allocations to a collected parent, by parental set: all parents, or males and females.
  std::array<SingleAllocation, 2> to_collected{};
  SingleAllocation to_uncollected;

  double correct = 0;  ///< as CorrectFrequency()
};

/// The figures of one class in one iteration. UC sides are right:
/// - non-sexed: as many of them as there are uncollected true parents;
/// - sexed: where the true parent of that sex is uncollected.
AllocationFigures FiguresOfClass(const SimulationDesign& design, const OriginClass& origin,
                                 const ClassCounts& counts);

/// The figures of every class in one iteration; those that a flow does not have stay 0.
using ClassFigures = std::array<AllocationFigures, kMostOriginClasses>;

/// The figures of every class in each iteration.
std::vector<ClassFigures> FiguresOfIterations(const SimulationDesign& design,
                                              Iterations iterations);

/// Each figure weighted over the classes (see Weighted); `weights` has one per class.
AllocationFigures WeighFigures(const SimulationDesign& design, std::span<const double> weights,
                               const ClassFigures& classes);

/// The same over all iterations, of which there is at least one, in the order of the flow:
/// - non-sexed: weighted in every iteration, then averaged as SpreadKind::kDifferences does;
/// - sexed: averaged class by class as SpreadKind::kSteps does, then weighted.
/// Both are equal but for rounding.
AllocationFigures AverageFigures(const SimulationDesign& design, std::span<const double> weights,
                                 std::span<const ClassFigures> iterations);

/// Estimated probabilities, 0 to 1, that an allocation can be trusted: by the averages of the
/// right ones and of all made, and 0 where none was made. The quotient of averages, not the average
/// of quotients, so that iterations count by what they allocated.
struct CorrectProbabilities {
  double any = 0;  ///< any allocation, UC included

  /// An allocation to a collected parent, by parental set as in AllocationFigures.
  std::array<double, 2> to_collected{};
  double to_uncollected = 0;  ///< that a parent is UC
};

CorrectProbabilities EstimateProbabilities(const AllocationFigures& average);

}  // namespace kaldo

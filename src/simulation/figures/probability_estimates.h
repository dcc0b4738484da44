// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "simulation/figures/estimate.h"

namespace kaldo {

/// What is allocated: any side, one to a collected parent of the first or of the second parental
/// set, one left as UC. The non-sexed flow has one set.
enum class AllocationKind { kAny, kToFirstSet, kToSecondSet, kToUncollected, kCount };

/// The estimated probabilities that allocations of each kind are correct.
using KindEstimates = std::array<Estimate, static_cast<std::size_t>(AllocationKind::kCount)>;

/// The estimates for one subset of loci.
struct ProbabilityEstimates {
  /// In the population: the classes of origin weighed by their share in it. Its values are the
  /// CorrectProbabilities.
  KindEstimates population;

  /// Of the pseudo-offspring that were made: all classes pooled, each counting by its number, of
  /// which truncation took some.
  KindEstimates pooled;

  std::vector<KindEstimates> classes;  ///< of each class of origin, in their order
};

/// The estimates from the figures of all iterations, of which there is at least one; `weights` has
/// one per class.
ProbabilityEstimates EstimateAll(const SimulationDesign& design, std::span<const double> weights,
                                 Iterations iterations, std::span<const ClassFigures> figures);

/// How often any allocation is correct in an iteration, weighed over the classes: what the estimate
/// of the population is made of.
double AnyCorrect(const SimulationDesign& design, std::span<const double> weights,
                  const IterationCounts& counts);

/// The standard error of the mean of such values; not a number for one of them.
double StandardError(std::span<const double> any_correct);

}  // namespace kaldo

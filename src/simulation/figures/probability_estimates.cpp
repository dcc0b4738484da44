// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/probability_estimates.h"

#include <cmath>

#include "simulation/figures/correct_frequency.h"
#include "simulation/figures/spread.h"

namespace kaldo {

namespace {

constexpr auto kKinds = static_cast<std::size_t>(AllocationKind::kCount);

/// By AllocationKind. Every pseudo-offspring has its two sides decided in some way, so that any
/// allocation is always made, but in a class without pseudo-offspring.
std::array<SingleAllocation, kKinds> ByKind(const AllocationFigures& figures, double any_made) {
  return {SingleAllocation{any_made, figures.correct}, figures.to_collected[0],
          figures.to_collected[1], figures.to_uncollected};
}

std::array<double, kKinds> ByKind(const CorrectProbabilities& probabilities) {
  return {probabilities.any, probabilities.to_collected[0], probabilities.to_collected[1],
          probabilities.to_uncollected};
}

/// The estimates when the classes count with these weights.
KindEstimates EstimateWith(const SimulationDesign& design, std::span<const double> weights,
                           bool any_offspring, std::span<const ClassFigures> figures) {
  std::array<std::vector<SingleAllocation>, kKinds> series;
  for (const ClassFigures& iteration : figures) {
    const auto kinds = ByKind(WeighFigures(design, weights, iteration), any_offspring ? 1 : 0);
    for (std::size_t kind = 0; kind < kKinds; ++kind) {
      series.at(kind).push_back(kinds.at(kind));
    }
  }
  const auto values = ByKind(EstimateProbabilities(AverageFigures(design, weights, figures)));
  KindEstimates estimates;
  for (std::size_t kind = 0; kind < kKinds; ++kind) {
    estimates.at(kind) = EstimateOf(series.at(kind), values.at(kind));
  }
  return estimates;
}

}  // namespace

ProbabilityEstimates EstimateAll(const SimulationDesign& design, std::span<const double> weights,
                                 Iterations iterations, std::span<const ClassFigures> figures) {
  const IterationCounts& sizes = iterations.front();
  const std::int32_t all = PseudoOffspring(sizes);
  ProbabilityEstimates estimates;
  std::vector<double> shares;
  shares.reserve(design.classes.size());
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    shares.push_back(all == 0 ? 0.0 : static_cast<double>(sizes.at(k).size) / all);
  }
  estimates.population = EstimateWith(design, weights, all > 0, figures);
  estimates.pooled = EstimateWith(design, shares, all > 0, figures);
  estimates.classes.reserve(design.classes.size());
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    std::vector<double> only(design.classes.size());
    only[k] = 1;
    estimates.classes.push_back(EstimateWith(design, only, sizes.at(k).size > 0, figures));
  }
  return estimates;
}

double AnyCorrect(const SimulationDesign& design, std::span<const double> weights,
                  const IterationCounts& counts) {
  double any = 0;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    any += weights[k] * CorrectFrequency(design.classes[k], counts.at(k));
  }
  return any;
}

double StandardError(std::span<const double> any_correct) {
  const double others = static_cast<double>(any_correct.size()) - 1;
  return others > 0 ? SpreadOf(any_correct, SpreadKind::kDifferences).deviation / std::sqrt(others)
                    : Estimate::kNone;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/allocation_figures.h"

#include <algorithm>

#include "simulation/figures/correct_frequency.h"
#include "simulation/figures/weighted.h"

namespace kaldo {

namespace {

constexpr SideCode kMale = 1;
constexpr SideCode kFemale = 2;

/// Sides that were decided in one way.
struct SideCounts {
  std::int32_t made = 0;
  std::int32_t right = 0;
};

/// The sides of all pseudo-offspring of a class, as in AllocationFigures.
struct SideSums {
  std::array<SideCounts, 2> to_collected{};
  SideCounts to_uncollected;
};

SideSums SumNonSexedSides(const OriginClass& origin, const ClassCounts& counts) {
  SideSums sums;
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    const OriginRow& kind = origin.rows[row];
    const std::int32_t count = counts.rows.at(row);
    const int unallocated = 2 - kind.allocated;
    sums.to_collected[0].made += kind.allocated * count;
    sums.to_collected[0].right += kind.correct * count;
    sums.to_uncollected.made += unallocated * count;
    sums.to_uncollected.right += std::min(unallocated, origin.UncollectedParents()) * count;
  }
  return sums;
}

SideSums SumSexedSides(const OriginClass& origin, const ClassCounts& counts) {
  SideSums sums;
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    const OriginRow& kind = origin.rows[row];
    const std::int32_t count = counts.rows.at(row);
    for (const SideCode sex : {kMale, kFemale}) {
      const bool is_allocated = (kind.allocated & sex) != 0;
      const bool is_uncollected =
          sex == kMale ? origin.first_uncollected : origin.second_uncollected;
      SideCounts& collected = sums.to_collected.at(sex == kMale ? 0 : 1);
      collected.made += is_allocated ? count : 0;
      collected.right += (kind.correct & sex) != 0 ? count : 0;
      sums.to_uncollected.made += is_allocated ? 0 : count;
      sums.to_uncollected.right += !is_allocated && is_uncollected ? count : 0;
    }
  }
  return sums;
}

/// Does the same to every figure of `figures` and the one of `others` that belongs to it.
template <typename Operation>
void ForEachFigure(AllocationFigures& figures, const AllocationFigures& others,
                   Operation operation) {
  const auto single = [&](SingleAllocation& each, const SingleAllocation& other) {
    operation(each.made, other.made);
    operation(each.right, other.right);
  };
  for (std::size_t sides = 0; sides < figures.pairs.size(); ++sides) {
    operation(figures.pairs.at(sides), others.pairs.at(sides));
  }
  for (std::size_t set = 0; set < figures.to_collected.size(); ++set) {
    single(figures.to_collected.at(set), others.to_collected.at(set));
  }
  single(figures.to_uncollected, others.to_uncollected);
  operation(figures.correct, others.correct);
}

}  // namespace

AllocationFigures FiguresOfClass(const SimulationDesign& design, const OriginClass& origin,
                                 const ClassCounts& counts) {
  AllocationFigures figures;
  std::array<std::int32_t, kSideCodes> by_sides{};
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    by_sides.at(origin.rows[row].allocated) += counts.rows.at(row);
  }
  for (std::size_t sides = 0; sides < kSideCodes; ++sides) {
    figures.pairs.at(sides) = counts.Share(by_sides.at(sides));
  }
  const SideSums sums = design.flow == Flow::kSexed ? SumSexedSides(origin, counts)
                                                    : SumNonSexedSides(origin, counts);
  const double all_sides = design.sides_per_set * counts.size;
  const auto shares = [all_sides](const SideCounts& sides) {
    return SingleAllocation{Ratio(sides.made, all_sides), Ratio(sides.right, all_sides)};
  };
  for (std::size_t set = 0; set < sums.to_collected.size(); ++set) {
    figures.to_collected.at(set) = shares(sums.to_collected.at(set));
  }
  figures.to_uncollected = shares(sums.to_uncollected);
  figures.correct = CorrectFrequency(origin, counts);
  return figures;
}

std::vector<ClassFigures> FiguresOfIterations(const SimulationDesign& design,
                                              Iterations iterations) {
  std::vector<ClassFigures> figures(iterations.size());
  for (std::size_t i = 0; i < iterations.size(); ++i) {
    for (std::size_t k = 0; k < design.classes.size(); ++k) {
      figures[i].at(k) = FiguresOfClass(design, design.classes[k], iterations[i].at(k));
    }
  }
  return figures;
}

AllocationFigures WeighFigures(const SimulationDesign& design, std::span<const double> weights,
                               const ClassFigures& classes) {
  AllocationFigures weighted;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    ForEachFigure(weighted, classes.at(k),
                  [&](double& sum, double figure) { sum += weights[k] * figure; });
  }
  return weighted;
}

AllocationFigures AverageFigures(const SimulationDesign& design, std::span<const double> weights,
                                 std::span<const ClassFigures> iterations) {
  const auto n = static_cast<double>(iterations.size());
  if (design.averages_before_weighing) {
    ClassFigures averages;
    for (const ClassFigures& iteration : iterations) {
      for (std::size_t k = 0; k < design.classes.size(); ++k) {
        ForEachFigure(averages.at(k), iteration.at(k),
                      [n](double& sum, double figure) { sum += figure / n; });
      }
    }
    return WeighFigures(design, weights, averages);
  }
  AllocationFigures average;
  for (const ClassFigures& iteration : iterations) {
    ForEachFigure(average, WeighFigures(design, weights, iteration),
                  [](double& sum, double figure) { sum += figure; });
  }
  ForEachFigure(average, average, [n](double& sum, double /*same*/) { sum /= n; });
  return average;
}

CorrectProbabilities EstimateProbabilities(const AllocationFigures& average) {
  const auto probability = [](const SingleAllocation& single) {
    return Ratio(single.right, single.made);
  };
  return {
      .any = average.correct,
      .to_collected = {probability(average.to_collected[0]), probability(average.to_collected[1])},
      .to_uncollected = probability(average.to_uncollected)};
}

}  // namespace kaldo

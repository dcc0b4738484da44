// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/counts_plan.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/byte_packing.h"
#include "simulation/iteration_portions.h"

namespace kaldo {

namespace {

/// A portion of so many pseudo-offspring takes some hundredths of a second among a thousand
/// parents.
constexpr std::size_t kMostOffspringPerPortion = 16'384;

}  // namespace

CountsPlan::CountsPlan(const SimulationSettings& settings, const SimulationInput& input,
                       SimulationResult& result, RunObserver& observer)
    : settings_(settings),
      input_(input),
      design_(DesignOf(settings.flow)),
      result_(result),
      observer_(observer),
      stream_(settings.flow, input, result.seed) {}

std::size_t CountsPlan::ItemsPerGroup() const {
  return static_cast<std::size_t>(settings_.iterations);
}

std::size_t CountsPlan::MostItemsPerPortion() const {
  const std::size_t offspring = std::max(input_.OffspringPerIteration(), 1U);
  return std::max<std::size_t>(kMostOffspringPerPortion / offspring, 1);
}

std::string CountsPlan::Order(const Portion& portion) {
  ordered_.push_back(stream_.Next(portion.Size()));
  return PackOrder(input_.subsets.At(portion.group), ordered_.back());
}

bool CountsPlan::Take(const Portion& portion, std::string_view result) {
  if (portion.begin == 0) {
    BeginSubset(portion.group);
  }
  ByteUnpacker unpacker(result);
  for (const std::uint32_t state : ordered_.front()) {
    result_.states.push_back(state);
    iterations_.push_back(unpacker.Get<IterationCounts>());
  }
  ordered_.pop_front();
  if (portion.end == ItemsPerGroup()) {
    EndSubset(portion.group);
  }
  return !result_.criterion_reached;
}

void CountsPlan::BeginSubset(std::size_t subset) {
  if (Groups() > 1) {
    observer_.OnNote(fmt::format("subset {} of {}", subset + 1, Groups()));
  }
  result_.states.clear();
  iterations_.clear();
}

void CountsPlan::EndSubset(std::size_t subset) {
  SubsetFigures figures;
  figures.loci = input_.subsets.At(subset);
  figures.average = AverageFigures(design_, input_.weights, iterations_);
  figures.probabilities = EstimateProbabilities(figures.average);
  if (settings_.print_subset_statistics) {
    for (const IterationTable& table : TablesByOrigin(design_, input_.weights, iterations_)) {
      figures.tables.push_back(SpreadsOf(table));
    }
  }
  result_.criterion_reached = settings_.strategy == LociStrategy::kMinimal &&
                              figures.probabilities.any >= settings_.criterion;
  result_.subsets.push_back(std::move(figures));
}

}  // namespace kaldo

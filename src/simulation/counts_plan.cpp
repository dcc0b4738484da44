// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/counts_plan.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/byte_packing.h"
#include "simulation/figures.h"
#include "simulation/iteration_portions.h"
#include "simulation/reports/subset_statistics.h"

namespace kaldo {

namespace {

/// A portion of so many pseudo-offspring takes some hundredths of a second among a thousand
/// parents.
constexpr std::size_t kMostOffspringPerPortion = 16'384;

}  // namespace

CountsPlan::CountsPlan(const SimulationSettings& settings, const SimulationInput& input,
                       const SimulationFlow& flow, SimulationResult& result, RunObserver& observer)
    : settings_(settings),
      input_(input),
      flow_(flow),
      result_(result),
      observer_(observer),
      stream_(input, flow.Design(), result.seed) {}

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
    result_.iterations.push_back(unpacker.Get<IterationCounts>());
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
  result_.iterations.clear();
}

void CountsPlan::EndSubset(std::size_t subset) {
  const LocusSubset loci = input_.subsets.At(subset);
  result_.subsets.push_back({loci, WeightedFigures(flow_, input_, result_.iterations)});
  if (settings_.print_subset_statistics) {
    result_.subset_statistics += SubsetStatistics(flow_, input_, loci, result_.iterations);
  }
  result_.criterion_reached =
      settings_.strategy == LociStrategy::kMinimal &&
      result_.LastSubset().figures[flow_.Design().any_correct_figure] >= settings_.criterion;
}

}  // namespace kaldo

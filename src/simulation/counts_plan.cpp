// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/counts_plan.h"

#include <algorithm>
#include <numeric>

#include <fmt/format.h>

#include "base/byte_packing.h"
#include "simulation/figures/iterations_suffice.h"
#include "simulation/iteration_portions.h"

namespace kaldo {

namespace {

/// A portion of so many pseudo-offspring takes some hundredths of a second among a thousand
/// parents.
constexpr std::size_t kMostOffspringPerPortion = 16'384;

/// Whether these counts make up so many pseudo-offspring.
template <std::size_t n>
bool MakeUp(const std::array<std::int32_t, n>& counts, std::int64_t all) {
  return std::all_of(counts.begin(), counts.end(), [](std::int32_t count) { return count >= 0; }) &&
         std::accumulate(counts.begin(), counts.end(), std::int64_t{0}) == all;
}

/// Whether each pseudo-offspring of a class counts just once in everything.
bool IsPossible(const ClassCounts& counts) {
  const std::int64_t single = std::int64_t{counts.size} - counts.ambiguous - counts.nulls;
  return counts.size >= 0 && counts.ambiguous >= 0 && counts.nulls >= 0 &&
         MakeUp(counts.rows, counts.size) && MakeUp(counts.single_pair, single) &&
         MakeUp(counts.first_pair, counts.size);
}

}  // namespace

CountsPlan::CountsPlan(const SimulationSettings& settings, const SimulationInput& input,
                       SimulationResult& result, RunObserver& observer)
    : settings_(settings),
      input_(input),
      design_(DesignOf(settings.flow)),
      result_(result),
      observer_(observer),
      stream_of_first_(settings, input, result.seed),
      stream_(stream_of_first_) {}

std::size_t CountsPlan::ItemsPerGroup() const {
  return static_cast<std::size_t>(settings_.iterations);
}

std::size_t CountsPlan::MostItemsPerPortion() const {
  const std::size_t offspring = std::max(input_.OffspringPerIteration(), 1U);
  const std::size_t most = std::max<std::size_t>(kMostOffspringPerPortion / offspring, 1);
  return settings_.until_error ? std::min(most, kIterationsPerJudgement) : most;
}

std::string CountsPlan::Order(const Portion& portion) {
  if (portion.begin == 0) {
    if (settings_.subset_randoms == SubsetRandoms::kCommon) {
      stream_ = stream_of_first_;
    } else {
      stream_.SkipTo(portion.group * ItemsPerGroup());
    }
  }
  ordered_.push_back({portion, stream_.Next(portion.Size())});
  return PackOrder(input_.subsets.At(portion.group), ordered_.back().starts);
}

bool CountsPlan::IsPossible(const Portion& portion, std::string_view result) const {
  ByteUnpacker unpacker(result);
  bool is_possible = result.size() == portion.Size() * sizeof(IterationCounts);
  while (is_possible && !unpacker.Rest().empty()) {
    const auto counts = unpacker.Get<IterationCounts>();
    is_possible =
        std::all_of(counts.begin(), counts.end(),
                    [](const ClassCounts& of_class) { return kaldo::IsPossible(of_class); }) &&
        PseudoOffspring(counts) == static_cast<std::int64_t>(input_.OffspringPerIteration());
  }
  return is_possible;
}

bool CountsPlan::Take(const Portion& portion, std::string_view result) {
  while (ordered_.front().portion != portion) {  // of a subset that had enough
    ordered_.pop_front();
  }
  if (portion.begin == 0) {
    BeginSubset(portion.group);
  }
  bool is_enough = false;
  ByteUnpacker unpacker(result);
  for (const IterationStart start : ordered_.front().starts) {
    result_.states.push_back(start);
    iterations_.push_back(unpacker.Get<IterationCounts>());
    if (IsEnough()) {
      is_enough = true;
      break;
    }
  }
  ordered_.pop_front();
  if (portion.end == ItemsPerGroup() || is_enough) {
    EndSubset(portion.group);
  }
  return !result_.criterion_reached;
}

/// Whether the subset may end with the iteration that was taken last.
bool CountsPlan::IsEnough() {
  if (!settings_.until_error) {
    return false;
  }
  any_correct_.push_back(AnyCorrect(design_, input_.weights, iterations_.back()));
  return IterationsSuffice(any_correct_, *settings_.until_error);
}

void CountsPlan::BeginSubset(std::size_t subset) {
  if (Groups() > 1) {
    observer_.OnNote(fmt::format("subset {} of {}", subset + 1, Groups()));
  }
  result_.states.clear();
  iterations_.clear();
  any_correct_.clear();
}

void CountsPlan::EndSubset(std::size_t subset) {
  SubsetFigures figures;
  figures.loci = input_.subsets.At(subset);
  const std::vector<ClassFigures> of_iterations = FiguresOfIterations(design_, iterations_);
  figures.iterations = static_cast<std::int32_t>(iterations_.size());
  figures.average = AverageFigures(design_, input_.weights, of_iterations);
  figures.probabilities = EstimateProbabilities(figures.average);
  figures.estimates = EstimateAll(design_, input_.weights, iterations_, of_iterations);
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

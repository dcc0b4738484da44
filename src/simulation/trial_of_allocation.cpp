// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/trial_of_allocation.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "allocation/findings.h"
#include "genotypes/capacities.h"
#include "simulation/reports/estimate_texts.h"

namespace kaldo {

namespace {

constexpr std::int32_t kIterations = 100;
constexpr std::size_t kMostOffspring = 1000;  ///< in an iteration

/// The parents that come to `collected` when their share is known.
double Uncollected(double collected, double share) {
  const double others = share > 0 ? collected * (1 - share) / share : HUGE_VAL;
  return std::round(std::min(others, kMostUncollected * collected));
}

/// Draws no more uncollected parents than an iteration has room for beside the collected ones, and
/// says so.
std::string DrawWhatFits(SimulationSettings& settings) {
  double wanted = 0;
  auto room = static_cast<double>(kMaxIndividuals);
  for (const ParentalSet& set : settings.Sets()) {
    wanted += set.uncollected;
    room -= set.estimated_collected;
  }
  if (wanted <= room) {
    return {};
  }
  double drawn = 0;
  for (ParentalSet& set : settings.sets) {
    set.uncollected = std::floor(set.uncollected * room / wanted);
    drawn += set.uncollected;
  }
  return fmt::format(
      "By the estimate {:.0f} parents were not collected. A simulation has room for {} parents in "
      "all, so that {:.0f} are drawn.",
      wanted, kMaxIndividuals, drawn);
}

ParentalSet SetOf(const std::string& file, std::size_t number, double share) {
  const auto collected = static_cast<double>(number);
  ParentalSet set;
  set.collected_file = file;
  set.uncollected_sample = file;
  set.uncollected = Uncollected(collected, share);
  set.estimated_collected = collected;
  set.estimated_uncollected = set.uncollected;
  return set;
}

}  // namespace

tl::expected<Trial, std::string> TrialOf(const AllocationSettings& settings,
                                         const AllocationInput& input,
                                         const AllocationResult& result) {
  if (!KnowsCertainty(result)) {
    return tl::unexpected<std::string>(
        result.confidence_is_lost
            ? "How many parents were not collected is not known: the report of how sure the run is "
              "cannot be used."
            : "How many parents were not collected is not known: this run computed no "
              "probabilities.");
  }
  if (std::isnan(result.confidence->shares.collected)) {
    return tl::unexpected<std::string>(
        "How many parents were not collected is not in the reports of a run that counts relatives. "
        "Run it again to try its results.");
  }
  if (input.groups.size() > 1) {
    return tl::unexpected<std::string>(
        "Simulations have no groups of parents, as the parents of this run have.");
  }
  SimulationSettings trial;
  trial.flow = settings.flow;
  trial.project = settings.project + "-simulation";
  trial.loci_file = settings.loci_file;
  trial.loci_in_use = settings.loci_in_use;
  trial.tolerance = settings.tolerance;
  trial.error_model = settings.error_model;
  trial.allow_undefined_parents = settings.allow_undefined_parents;
  if (settings.allow_undefined_parents) {
    trial.undefined_in_sample = UndefinedInSample::kIgnore;
  }
  if (input.NumberOfMissingGenotypes() > 0) {
    trial.undefined_like = settings.offspring_file;
  }
  trial.iterations = kIterations;
  trial.offspring_per_iteration =
      static_cast<std::int32_t>(std::min(input.NumberOfOffspring(), kMostOffspring));
  const ExplanationShares& shares = result.confidence->shares;
  if (settings.flow == Flow::kNonSexed) {
    trial.allocate_with.reset();  // with the model of the run
    trial.sets[0] = SetOf(settings.parents_file, input.NumberOfParents(), shares.collected);
  } else {
    trial.sets[0] =
        SetOf(settings.males_file, input.first_parents.Size(), shares.collected_by_side[0]);
    trial.sets[1] =
        SetOf(settings.females_file, input.second_parents.Size(), shares.collected_by_side[1]);
  }
  std::string note = DrawWhatFits(trial);
  return Trial{std::move(trial), std::move(note)};
}

std::string TrialSentence(const SimulationSettings& settings, const SimulationResult& result) {
  std::string sentence = fmt::format(
      "A simulation like this run ({} x {} pseudo-offspring) estimates how probably allocations "
      "are right in the population:",
      settings.iterations, settings.offspring_per_iteration);
  std::string_view before = " ";
  for (const EstimateKind& kind : EstimateKinds(settings.flow)) {
    const Estimate& estimate = EstimateOfKind(result.LastSubset().estimates.population, kind.kind);
    if (std::isnan(estimate.value)) {
      continue;
    }
    sentence += fmt::format("{}{} {:.3f}", before, kind.words, estimate.value);
    if (!std::isnan(estimate.error)) {
      sentence += fmt::format(" (standard error {:.3f})", estimate.error);
    }
    before = ", ";
  }
  return sentence + ".";
}

}  // namespace kaldo

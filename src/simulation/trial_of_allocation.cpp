// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/trial_of_allocation.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "allocation/findings.h"
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

tl::expected<SimulationSettings, std::string> TrialOf(const AllocationSettings& settings,
                                                      const AllocationInput& input,
                                                      const AllocationResult& result) {
  if (!KnowsCertainty(result)) {
    return tl::unexpected<std::string>(
        "How many parents were not collected is not known: this run computed no probabilities.");
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
  const ByExplanation<double>& theta = result.confidence->shares.theta;
  if (settings.flow == Flow::kNonSexed) {
    trial.allocate_with.reset();  // with the model of the run
    trial.sets[0] =
        SetOf(settings.parents_file, input.NumberOfParents(), result.confidence->shares.collected);
  } else {
    const double both = theta[Explanation::kBoth];
    trial.sets[0] =
        SetOf(settings.males_file, input.first_parents.Size(), both + theta[Explanation::kFirst]);
    trial.sets[1] = SetOf(settings.females_file, input.second_parents.Size(),
                          both + theta[Explanation::kSecond]);
  }
  return trial;
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
      sentence += fmt::format(" (standard error {:.2g})", estimate.error);
    }
    before = ", ";
  }
  return sentence + ".";
}

}  // namespace kaldo

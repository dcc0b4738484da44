// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_checks.h"

#include <cmath>

#include <fmt/format.h>

#include "genotypes/capacities.h"
#include "simulation/allocation_model.h"
#include "simulation/scan.h"

namespace kaldo {

namespace {

constexpr std::int32_t kTooManyNonSexedIterations = 1000;
constexpr std::int32_t kManySexedIterations = 1000;

bool IsNumberOfParents(double number) {
  return std::isfinite(number) && number >= 0 && number <= static_cast<double>(kMaxIndividuals);
}

void FindFaultyNumbersOf(const SimulationSettings& settings, const ParentalSet& set,
                         std::vector<Problem>& found) {
  const bool draws_collected = settings.procedure == Procedure::kPreParental;
  if (draws_collected && set.pseudo_collected < 1) {
    found.push_back({.kind = ProblemKind::kNoPseudoCollected,
                     .found = fmt::format("it is {}", set.pseudo_collected)});
  }
  if (!IsNumberOfParents(set.uncollected) || !IsNumberOfParents(set.pseudo_collected)) {
    found.push_back(
        {.kind = ProblemKind::kImpossibleNumberOfParents,
         .found = fmt::format("{} pseudo-collected and {} uncollected parents; at most {} in all",
                              set.pseudo_collected, set.uncollected, kMaxIndividuals)});
  }
  if (settings.flow != Flow::kSexed) {
    return;
  }
  const double all = set.estimated_collected + set.estimated_uncollected;
  if (!std::isfinite(all) || set.estimated_collected < 0 || set.estimated_uncollected < 0 ||
      !(all > 0)) {
    found.push_back(
        {.kind = ProblemKind::kImpossibleEstimate,
         .found = fmt::format("{} collected and {} uncollected parents of one sex are estimated",
                              set.estimated_collected, set.estimated_uncollected)});
  }
}

/// A scan compares numbers with one set of loci; a table of subsets by numbers would be read by
/// nobody.
void FindFaultsOfScan(const SimulationSettings& settings, std::vector<Problem>& found) {
  const auto refuse = [&found](std::string why) {
    found.push_back({.kind = ProblemKind::kChoicesDoNotFit, .found = std::move(why)});
  };
  for (const std::int32_t tolerance : settings.scan_tolerance) {
    if (auto problem = ValidateTolerance(OffsetTolerance{tolerance})) {
      found.push_back(std::move(*problem));
    }
  }
  for (const double uncollected : settings.scan_uncollected) {
    if (!IsNumberOfParents(uncollected)) {
      found.push_back({.kind = ProblemKind::kImpossibleNumberOfParents,
                       .found = fmt::format("{} uncollected parents; at most {} in all",
                                            uncollected, kMaxIndividuals)});
    }
  }
  if (IsScanWanted(settings) && settings.strategy != LociStrategy::kChoice) {
    refuse("a scan is run with one choice of loci; leave --strategy out");
  }
  if (IsScanWanted(settings) && settings.until_error) {
    refuse("a scan compares runs of equal length; leave --until-se out");
  }
  if (!settings.scan_tolerance.empty() && !ToleranceActs(settings)) {
    refuse(settings.flow == Flow::kSexed
               ? "without errors a tolerance changes nothing; scan with another --error"
               : "a tolerance changes nothing where the allocation knows no errors; scan with "
                 "--allocate-with run");
  }
}

}  // namespace

std::optional<Problem> ValidateForSimulation(const ErrorModel& model) {
  if (model.kind != ErrorKind::kNonUniform) {
    return ValidateForAllocation(model);
  }
  if (!(model.focal >= 0.9 && model.focal <= 1.0)) {
    return Problem{.kind = ProblemKind::kSimulatedFocalOutOfRange,
                   .found = fmt::format("it is {}", model.focal)};
  }
  const double sum = model.plus2 + model.plus1 + model.minus1 + model.minus2 + model.focal;
  if (sum != 1.0) {
    return Problem{.kind = ProblemKind::kSimulatedProbabilitySum,
                   .found = fmt::format("they sum to {}", sum)};
  }
  return std::nullopt;
}

std::optional<Problem> CheckIterations(Flow flow, std::int32_t iterations) {
  if (flow == Flow::kNonSexed && iterations >= kTooManyNonSexedIterations) {
    return Problem{.kind = ProblemKind::kTooManyIterations,
                   .found = fmt::format("it is {}", iterations)};
  }
  if (iterations < 1) {
    return Problem{.kind = ProblemKind::kNoIteration, .found = fmt::format("it is {}", iterations)};
  }
  return std::nullopt;
}

bool WarnsOfManyIterations(Flow flow, std::int32_t iterations) {
  return flow == Flow::kSexed && iterations > kManySexedIterations;
}

std::optional<Problem> CheckSimulationNumbers(const SimulationSettings& settings) {
  auto found = FindFaultyNumbers(settings);
  return found.empty() ? std::nullopt : std::optional(std::move(found.front()));
}

std::vector<Problem> FindFaultyNumbers(const SimulationSettings& settings) {
  std::vector<Problem> found;
  if (auto problem = ValidateTolerance(settings.tolerance)) {
    found.push_back(std::move(*problem));
  }
  if (auto problem = CheckIterations(settings.flow, settings.iterations)) {
    found.push_back(std::move(*problem));
  }
  if (!(settings.criterion >= 0 && settings.criterion <= 1)) {
    found.push_back({.kind = ProblemKind::kCriterionOutOfRange,
                     .found = fmt::format("the correctness criterion is {}", settings.criterion)});
  }
  if (settings.start_with < 1) {
    found.push_back({.kind = ProblemKind::kStartWithTooSmall,
                     .found = fmt::format("it is {}", settings.start_with)});
  }
  if (!(settings.undefined >= 0 && settings.undefined < 1)) {
    found.push_back({.kind = ProblemKind::kNotAnUndefinedRate,
                     .found = fmt::format("it is {}", settings.undefined)});
  }
  if (settings.undefined != 0 && !settings.undefined_like.empty()) {
    found.push_back({.kind = ProblemKind::kChoicesDoNotFit,
                     .found = "a share of undefined loci, and a file that tells it"});
  }
  FindFaultsOfScan(settings, found);
  const auto most = static_cast<std::int32_t>(kMaxIndividuals);
  if (settings.offspring_per_iteration < 1) {
    found.push_back({.kind = ProblemKind::kNoPseudoOffspring,
                     .found = fmt::format("it is {}", settings.offspring_per_iteration)});
  } else if (settings.offspring_per_iteration > most) {
    found.push_back({.kind = ProblemKind::kTooManyPseudoOffspring,
                     .subject = fmt::format("{}", most),
                     .found = fmt::format("it is {}", settings.offspring_per_iteration)});
  }
  for (const ParentalSet& set : settings.Sets()) {
    FindFaultyNumbersOf(settings, set, found);
  }
  return found;
}

}  // namespace kaldo

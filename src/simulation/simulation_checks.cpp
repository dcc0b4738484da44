// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_checks.h"

#include <cmath>

#include <fmt/format.h>

#include "base/number_text.h"
#include "genotypes/capacities.h"

namespace kaldo {

namespace {

constexpr std::int32_t kTooManyNonSexedIterations = 1000;
constexpr std::int32_t kManySexedIterations = 1000;

std::optional<Problem> Fault(std::string sentence, std::string found) {
  Problem problem;
  problem.sentence = std::move(sentence);
  problem.found = std::move(found);
  return problem;
}

bool IsNumberOfParents(double number) {
  return std::isfinite(number) && number >= 0 && number <= static_cast<double>(kMaxIndividuals);
}

std::optional<Problem> CheckSet(const SimulationSettings& settings, const ParentalSet& set) {
  if (settings.procedure == Procedure::kPreParental && set.pseudo_collected < 1) {
    return Fault("The number of pseudo-collected parents must be above 0!",
                 fmt::format("it is {}", set.pseudo_collected));
  }
  if (!IsNumberOfParents(set.uncollected) || !IsNumberOfParents(set.pseudo_collected)) {
    return Fault("That number of parents is not possible!",
                 fmt::format("{} pseudo-collected and {} uncollected parents; at most {} in all",
                             set.pseudo_collected, FormatDouble(set.uncollected), kMaxIndividuals));
  }
  if (settings.flow != Flow::kSexed) {
    return std::nullopt;
  }
  const double all = set.estimated_collected + set.estimated_uncollected;
  if (!std::isfinite(all) || set.estimated_collected < 0 || set.estimated_uncollected < 0 ||
      !(all > 0)) {
    return Fault("The estimated numbers of parents must not be negative, and not all 0!",
                 fmt::format("{} collected and {} uncollected parents of one sex are estimated",
                             FormatDouble(set.estimated_collected),
                             FormatDouble(set.estimated_uncollected)));
  }
  return std::nullopt;
}

}  // namespace

std::optional<Problem> ValidateForSimulation(const ErrorModel& model) {
  if (model.kind != ErrorKind::kNonUniform) {
    return ValidateForAllocation(model);
  }
  if (!(model.focal >= 0.9 && model.focal <= 1.0)) {
    return Fault("Focal allele must be between 0.9 and 1.0",
                 fmt::format("it is {}", FormatDouble(model.focal)));
  }
  const double sum = model.plus2 + model.plus1 + model.minus1 + model.minus2 + model.focal;
  if (sum != 1.0) {
    return Fault("Sum of probabilities must be 1", fmt::format("they sum to {}", sum));
  }
  return std::nullopt;
}

std::optional<Problem> CheckIterations(Flow flow, std::int32_t iterations) {
  if (flow == Flow::kNonSexed && iterations >= kTooManyNonSexedIterations) {
    return Fault("Number of iterations must be inferior to 1000",
                 fmt::format("it is {}", iterations));
  }
  if (iterations < 1) {
    return Fault("The number of iterations must be above 0!", fmt::format("it is {}", iterations));
  }
  return std::nullopt;
}

bool WarnsOfManyIterations(Flow flow, std::int32_t iterations) {
  return flow == Flow::kSexed && iterations > kManySexedIterations;
}

std::optional<Problem> CheckSimulationNumbers(const SimulationSettings& settings) {
  if (auto problem = ValidateTolerance(settings.tolerance)) {
    return problem;
  }
  if (auto problem = CheckIterations(settings.flow, settings.iterations)) {
    return problem;
  }
  if (!(settings.criterion >= 0 && settings.criterion <= 1)) {
    return Fault("Enter number between 0 and 1",
                 fmt::format("the correctness criterion is {}", FormatDouble(settings.criterion)));
  }
  if (settings.start_with < 1) {
    return Fault("The minimum number of loci to start with is 1",
                 fmt::format("it is {}", settings.start_with));
  }
  const auto most = static_cast<std::int32_t>(kMaxIndividuals);
  if (settings.offspring_per_iteration < 1 || settings.offspring_per_iteration > most) {
    return Fault("The number of pseudo-offspring must be above 0!",
                 fmt::format("it is {}; at most {} in an iteration",
                             settings.offspring_per_iteration, most));
  }
  for (const ParentalSet& set : settings.Sets()) {
    if (auto problem = CheckSet(settings, set)) {
      return problem;
    }
  }
  return std::nullopt;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/random_warnings.h"

#include <cmath>

#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/pseudo_offspring.h"
#include "simulation/simulated_parents.h"

namespace kaldo {

namespace {

constexpr std::size_t kEnoughDigits = 3;
constexpr double kDrawsInAll = 4294967296.0;  // 2^32

std::uint32_t SimulatedParentsIn(const SimulationInput& input) {
  std::uint32_t parents = 0;
  for (const ParentalGroup& group : input.groups) {
    parents += group.sample ? static_cast<std::uint32_t>(group.slots.Size()) : 0;
  }
  return parents;
}

}  // namespace

double DrawsOfRun(const SimulationSettings& settings, const SimulationInput& input) {
  const std::size_t loci = input.loci.Count();
  const double of_iteration =
      static_cast<double>(SimulatedParentsIn(input)) * static_cast<double>(DrawsPerParent(loci)) +
      static_cast<double>(input.OffspringPerIteration()) *
          static_cast<double>(2 + DrawsPerPseudoOffspring(loci));
  const bool all_own = settings.subset_randoms == SubsetRandoms::kOwn;
  return of_iteration * settings.iterations *
         (all_own ? static_cast<double>(input.subsets.Count()) : 1.0);
}

std::vector<Warning> WarnOfRandomNumbers(const SimulationSettings& settings,
                                         const SimulationInput& input) {
  std::vector<Warning> warnings;
  if (settings.random == RandomSource::kModern) {
    return warnings;
  }
  const std::size_t digits = input.digits_per_field / 2;
  const bool draws_finely =
      SimulatedParentsIn(input) > 0 || settings.error_model.kind != ErrorKind::kNoError;
  if (digits < kEnoughDigits && draws_finely) {
    warnings.push_back(
        {.kind = WarningKind::kCoarseRandomNumbers,
         .found = fmt::format("{}; anything more seldom than {} counts as nothing",
                              digits == 1 ? "1 digit per allele" : "2 digits per allele",
                              digits == 1 ? "0.1" : "0.01")});
  }
  // A search for a minimal subset seldom runs through all of them.
  const double draws = DrawsOfRun(settings, input);
  if (draws > kDrawsInAll && settings.strategy != LociStrategy::kMinimal) {
    warnings.push_back({.kind = WarningKind::kRandomNumbersRepeat,
                        .found = fmt::format("about {} draws, and 4294967296 until they repeat",
                                             FormatDouble(draws))});
  }
  return warnings;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_banner.h"

#include <cmath>

#include <fmt/format.h>

#include "simulation/allocation_model.h"

namespace kaldo {

namespace {

std::string ParentsOf(const ParentalSet& set, double collected, double share,
                      std::string_view who) {
  std::string text =
      fmt::format("{:.6g} collected and {:.6g} uncollected {}", collected, set.uncollected, who);
  return std::isnan(share)
             ? text
             : text + fmt::format(" ({:.1f} % of the population uncollected)", 100 * (1 - share));
}

std::string ModelSentence(const SimulationSettings& settings) {
  const ErrorModel model = AllocationModelOf(settings);
  const std::string made = ShortDescription(settings.error_model);
  const bool errs = settings.error_model.kind != ErrorKind::kNoError;
  if (model == settings.error_model || (!errs && model.kind == ErrorKind::kNoError)) {
    const bool chosen = settings.flow == Flow::kNonSexed && !settings.allocate_with;
    return fmt::format(
        "Allocated with the model of error of the run ({}){}, as real offspring are.", made,
        chosen ? ", --allocate-with run" : "");
  }
  return model.kind == ErrorKind::kNoError
             ? fmt::format(
                   "Made with errors ({}), allocated as if there were none: strict "
                   "exclusion.",
                   made)
             : fmt::format("Made with errors ({}), allocated with another model ({}).", made,
                           ShortDescription(model));
}

}  // namespace

std::string SimulationBanner(const SimulationSettings& settings, const SimulationInput& input) {
  const auto sets = settings.Sets();
  std::string parents;
  for (std::size_t k = 0; k < sets.size(); ++k) {
    const bool sexed = settings.flow == Flow::kSexed;
    parents +=
        fmt::format("{}{}", k > 0 ? ", " : "",
                    ParentsOf(sets[k], input.collected_numbers.at(k), input.collected_shares.at(k),
                              !sexed   ? "parents"
                              : k == 0 ? "males"
                                       : "females"));
  }
  return fmt::format("Offspring of {}. {}", parents, ModelSentence(settings));
}

}  // namespace kaldo

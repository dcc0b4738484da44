// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/allocation_model.h"

namespace kaldo {

ErrorModel AllocationModelOf(const SimulationSettings& settings) {
  return settings.flow == Flow::kSexed ? settings.error_model
                                       : settings.allocate_with.value_or(settings.error_model);
}

ErrorModel ConfidenceModelOf(const SimulationSettings& settings) {
  const ErrorModel model = AllocationModelOf(settings);
  return model.kind == ErrorKind::kNoError ? settings.error_model : model;
}

bool ToleranceActs(const SimulationSettings& settings) {
  return AllocationModelOf(settings).kind != ErrorKind::kNoError;
}

std::optional<std::string> AllocatedWithoutErrorsNote(const SimulationSettings& settings,
                                                      const std::string& how) {
  const bool errs = settings.error_model.kind != ErrorKind::kNoError;
  if (!errs || settings.flow == Flow::kSexed || ToleranceActs(settings)) {
    return std::nullopt;
  }
  return "The pseudo-offspring hold errors and were allocated as if they held none: the figures "
         "describe strict exclusion, not an allocation with an error model, which " +
         how + " simulates.";
}

std::optional<Problem> CheckAllocationModel(const SimulationSettings& settings) {
  if (settings.flow == Flow::kSexed || !settings.allocate_with) {
    return std::nullopt;
  }
  return ValidateForAllocation(*settings.allocate_with);
}

}  // namespace kaldo

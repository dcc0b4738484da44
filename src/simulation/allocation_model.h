// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "simulation/simulation_settings.h"

namespace kaldo {

// Errors always act when pseudo-offspring are made. With which model they are allocated is another
// question: the sexed flow takes that of the run, as an allocation of real offspring would; the
// non-sexed flow excludes strictly, unless the user chooses.

/// The model with which the pseudo-offspring of a run are allocated.
ErrorModel AllocationModelOf(const SimulationSettings& settings);

/// The model on which posterior probabilities rest. Strict exclusion has none to offer: they rest
/// on the model of the run then.
ErrorModel ConfidenceModelOf(const SimulationSettings& settings);

/// Whether a tolerance can change anything. Where the allocation holds every error for impossible,
/// each pair that is kept fits everywhere.
bool ToleranceActs(const SimulationSettings& settings);

/// What the figure of a run describes where pseudo-offspring with errors are allocated without any,
/// and how to get the other one, `how` naming the choice; nothing where both follow one model.
std::optional<std::string> AllocatedWithoutErrorsNote(const SimulationSettings& settings,
                                                      const std::string& how);

/// Tests the model that was chosen for the allocation, as `kaldo allocate` would.
std::optional<Problem> CheckAllocationModel(const SimulationSettings& settings);

}  // namespace kaldo

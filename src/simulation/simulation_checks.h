// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "base/problem.h"
#include "method/error_model.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// The checks of the transmission error screen of the simulations: Uniform as in an allocation; Non
/// Uniform focal first, then the sum, added from plus2 to focal.
std::optional<Problem> ValidateForSimulation(const ErrorModel& model);

/// A non-sexed simulation has fewer than 1,000 iterations, and any one at least one.
std::optional<Problem> CheckIterations(Flow flow, std::int32_t iterations);

/// Shown before a sexed simulation of more than 1,000 iterations, which runs all the same.
inline constexpr std::string_view kManyIterations = "1000 iterations maximum!";
bool WarnsOfManyIterations(Flow flow, std::int32_t iterations);

/// The numbers of the screens: tolerance, iterations, criterion, loci to start with, then numbers
/// of parents and of pseudo-offspring, which must leave something to simulate.
std::optional<Problem> CheckSimulationNumbers(const SimulationSettings& settings);

/// All that these tests find.
std::vector<Problem> FindFaultyNumbers(const SimulationSettings& settings);

}  // namespace kaldo

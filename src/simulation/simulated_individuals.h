// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "simulation/simulated_iteration.h"

namespace kaldo {

/// Simulated parents as a genotype file: every one is called "unnamed".
std::string ParentsText(const SimulatedIteration& iteration, SlotRange parents,
                        std::size_t digits_per_field);

/// Pseudo-offspring as a genotype file whose names are the places of the two true parents in the
/// parent table, counted from 0, each in three columns.
std::string PseudoOffspringText(const SimulatedIteration& iteration, std::size_t digits_per_field);

}  // namespace kaldo

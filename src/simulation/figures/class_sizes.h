// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "simulation/simulation_settings.h"

namespace kaldo {

/// The pseudo-offspring of each class of origin in an iteration, in the order of the classes: the
/// number wanted times the share of the class, truncated. What truncation cuts off is not given to
/// another class, so that no class is larger than expected (this program's convention).
/// `collected` is as in CollectedShares().
///
/// The products are formed in the order of the formulas in the source: a double just below a whole
/// number is truncated to one less, so that another order may make another number.
std::vector<std::int32_t> ClassSizes(const SimulationSettings& settings,
                                     std::span<const double> collected);

}  // namespace kaldo

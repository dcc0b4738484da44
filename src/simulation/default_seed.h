// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>

#include "simulation/simulation_settings.h"

namespace kaldo {

/// The seed of a run that was given none:
/// - default random numbers: the calendar time in seconds, so that runs begun in the same second
///   share it;
/// - modern ones: mixed from the time in its finest ticks and from what the machine holds for
///   random, so that no two runs share it but by a chance of one in four thousand millions.
std::uint32_t DefaultSeed(RandomSource source, std::chrono::system_clock::time_point time);

}  // namespace kaldo

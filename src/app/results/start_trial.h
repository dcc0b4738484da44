// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace kaldo {

struct SimulationSettings;

/// Opens the screens of a simulation like an allocation, and gives its figures back; nothing where
/// it was not run.
using StartTrial = std::function<std::optional<std::string>(const SimulationSettings&)>;

}  // namespace kaldo

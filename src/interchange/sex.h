// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace kaldo {

/// The sex of an individual, by the numbers that pedigree programs write.
enum class Sex : std::uint8_t { kUnknown = 0, kMale = 1, kFemale = 2 };

}  // namespace kaldo

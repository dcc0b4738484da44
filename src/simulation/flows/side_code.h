// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

#include "method/flow.h"

namespace kaldo {

/// The two sides of a decision, or of a pair, as one small number: which sides were allocated to a
/// collected parent, or which of them are true parents. This program's convention, so that counts
/// can stand in small arrays:
/// - sexed: bit 0 the male, bit 1 the female; 0 none, 1 male, 2 female, 3 both;
/// - non-sexed, where the sides have no names: how many of them, 0 to 2.
using SideCode = std::uint8_t;

/// Codes of both flows lie below this number.
inline constexpr std::size_t kSideCodes = 4;

/// The code of the sides that are told.
SideCode CodeOfSides(Flow flow, bool first_side, bool second_side);

/// How many sides a code names: 0 to 2.
int NumberOfSides(Flow flow, SideCode sides);

}  // namespace kaldo

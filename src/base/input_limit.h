// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace kaldo {

/// Bytes of an input file; a larger one is no genotype file of this size class.
inline constexpr std::size_t kMaxInputBytes = std::size_t{256} * 1024 * 1024;

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kaldo {

/// "1 locus", "9 loci".
std::string Counted(std::size_t count, std::string_view one, std::string_view many);

}  // namespace kaldo

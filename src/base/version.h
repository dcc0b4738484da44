// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace kaldo {

/// The product title of the windows.
inline constexpr std::string_view kProductTitle = "KALDO 1.0";

/// For instance "1.0.0".
std::string_view Version();

/// The kind of build and the commit, for instance "Release, 1a2b3c4".
std::string_view BuildNote();

}  // namespace kaldo

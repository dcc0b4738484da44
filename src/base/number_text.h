// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kaldo {

/// `value` with at most six significant digits and a point whatever the user's language: 0.25,
/// 1e-05, 3. A value that is not a number reads "nan" on every platform.
std::string FormatDouble(double value);

/// The whole of `text` as a decimal whole number ("010" is ten), or nothing.
std::optional<std::int32_t> ParseInteger(std::string_view text);

/// The same from 0 to 4294967295.
std::optional<std::uint32_t> ParseSeedNumber(std::string_view text);

/// The whole of `text` as a number with a decimal point, or nothing. "nan" and "inf" are numbers
/// here; whoever takes a probability refuses them.
std::optional<double> ParseDouble(std::string_view text);

}  // namespace kaldo

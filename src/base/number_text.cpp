// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"

#include <charconv>
#include <cmath>

#include <fmt/format.h>

namespace kaldo {

namespace {

template <typename Number>
std::optional<Number> ParseWhole(std::string_view text) {
  Number value{};
  const char* const end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || stopped != end) {
    return std::nullopt;
  }
  return value;
}

}  // namespace

std::string FormatDouble(double value) {
  return std::isnan(value) ? "nan" : fmt::format("{:g}", value);
}

std::optional<std::int32_t> ParseInteger(std::string_view text) {
  return ParseWhole<std::int32_t>(text);
}

std::optional<std::uint32_t> ParseSeedNumber(std::string_view text) {
  return ParseWhole<std::uint32_t>(text);
}

std::optional<double> ParseDouble(std::string_view text) { return ParseWhole<double>(text); }

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>

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

#ifdef __cpp_lib_to_chars
std::optional<double> ParseDouble(std::string_view text) { return ParseWhole<double>(text); }
#else
// For standard libraries that do not read doubles so. strtod() takes more: blanks and a plus at the
// beginning, and hexadecimal digits.
std::optional<double> ParseDouble(std::string_view text) {
  const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
  const auto begins_with_one_of = [&](std::string_view characters) {
    return !digits.empty() && characters.find(digits.front()) != std::string_view::npos;
  };
  const bool is_decimal =
      begins_with_one_of("0123456789.") && digits.find_first_of("xX") == std::string_view::npos;
  if (!is_decimal && !begins_with_one_of("nNiI")) {
    return std::nullopt;
  }
  const std::string copy(text);
  char* end = nullptr;
  errno = 0;
  const double value = std::strtod(copy.c_str(), &end);
  const bool is_in_range = errno == 0 || (value != 0 && std::isfinite(value));
  return is_in_range && end == copy.c_str() + copy.size() ? std::optional(value) : std::nullopt;
}
#endif

}  // namespace kaldo

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
// For standard libraries that read no doubles so. What follows takes a sign, blanks and hexadecimal
// digits at the beginning, too, and tells numbers too large or too small otherwise.
std::optional<double> ParseDouble(std::string_view text) {
  const std::string copy(text);
  const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
  const bool is_word = digits.starts_with('n') || digits.starts_with('N') ||
                       digits.starts_with('i') || digits.starts_with('I');
  if (!is_word && (digits.find_first_of("+xX") == 0 || digits.empty() ||
                   std::string_view("0123456789.").find(digits.front()) == std::string_view::npos ||
                   digits.find_first_of("xX") != std::string_view::npos)) {
    return std::nullopt;
  }
  char* end = nullptr;
  errno = 0;
  const double value = std::strtod(copy.c_str(), &end);
  return errno == 0 && end == copy.c_str() + copy.size() ? std::optional(value) : std::nullopt;
}
#endif

}  // namespace kaldo

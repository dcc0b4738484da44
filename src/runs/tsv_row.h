// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace kaldo {

/// A number as a table tells it: what is read back.
double AsTold(double number);

/// A line of a table that statistics programs read without being told anything: cells between tabs,
/// "NA" where there is nothing. A name with a quotation mark, a tab or a line end stands between
/// quotation marks, its own doubled (RFC 4180), as both R and pandas expect.
class TsvRow {
 public:
  TsvRow& Text(std::string_view text);

  /// A word that the program writes, or a whole number.
  TsvRow& Plain(std::string_view word);
  TsvRow& Whole(std::integral auto number) { return Plain(std::to_string(number)); }

  /// At most eight significant digits: 0.97251034, 1, 3.1e-12.
  TsvRow& Number(double number);

  TsvRow& NumberIfAny(std::optional<double> number) { return number ? Number(*number) : Nothing(); }

  TsvRow& Nothing() { return Plain("NA"); }

  /// The row with its line end.
  std::string Line() const { return text_ + '\n'; }

 private:
  std::string text_;
};

}  // namespace kaldo

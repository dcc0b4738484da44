// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/tsv_row.h"

#include <fmt/format.h>

#include "base/number_text.h"

namespace kaldo {

double AsTold(double number) { return ParseDouble(fmt::format("{:.8g}", number)).value_or(number); }

TsvRow& TsvRow::Plain(std::string_view word) {
  if (!text_.empty()) {
    text_ += '\t';
  }
  text_ += word;
  return *this;
}

TsvRow& TsvRow::Text(std::string_view text) {
  if (text.find_first_of("\"\t\r\n") == std::string_view::npos) {
    return Plain(text);
  }
  std::string quoted;
  for (const char character : text) {
    quoted.append(character == '"' ? 2 : 1, character);
  }
  return Plain('"' + quoted + '"');
}

TsvRow& TsvRow::Number(double number) {
  // Adding 0 makes -0 a 0.
  return Plain(fmt::format("{:.8g}", number + 0.0));
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/import_log.h"

#include <fmt/format.h>

namespace kaldo {

void LineRanges::Add(std::uint32_t line) {
  if (!ranges_.empty() && line <= ranges_.back().second + 1) {
    ranges_.back().second = line;
  } else {
    ranges_.emplace_back(line, line);
  }
}

std::string LineRanges::Text() const {
  std::string text;
  for (const auto& [first, last] : ranges_) {
    text += text.empty() ? "" : ", ";
    text += first == last ? fmt::format("{}", first) : fmt::format("{}-{}", first, last);
  }
  return text;
}

}  // namespace kaldo

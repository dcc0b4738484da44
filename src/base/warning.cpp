// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/warning.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

namespace {

constexpr bool TableFollowsTheKinds() {
  for (std::size_t kind = 0; kind < kWarningSentences.size(); ++kind) {
    if (kWarningSentences.at(kind).kind != static_cast<WarningKind>(kind)) {
      return false;
    }
  }
  return true;
}

static_assert(TableFollowsTheKinds(), "a kind has no sentence, or stands at another place");

}  // namespace

std::string TextOf(const Warning& warning) {
  std::string text(kWarningSentences.at(static_cast<std::size_t>(warning.kind)).text);
  if (!warning.file.empty()) {
    text += ' ' + Escaped(warning.file);
  }
  if (warning.line != 0) {
    text += fmt::format(", line {}", warning.line);
  }
  if (!warning.found.empty()) {
    text += (warning.file.empty() ? " " : ": ") + warning.found;
  }
  if (warning.more != 0) {
    text += fmt::format(" (and {} more)", warning.more);
  }
  return text;
}

std::vector<Warning> SummedUp(const std::vector<Warning>& warnings) {
  std::vector<Warning> sums;
  for (const Warning& warning : warnings) {
    const auto first = std::find_if(sums.begin(), sums.end(), [&warning](const Warning& sum) {
      return sum.kind == warning.kind && sum.file == warning.file;
    });
    if (first == sums.end()) {
      sums.push_back(warning);
    } else {
      first->more += 1 + warning.more;
    }
  }
  return sums;
}

std::vector<std::string> WarningLines(const std::vector<Warning>& warnings) {
  std::vector<std::string> lines;
  for (const Warning& warning : SummedUp(warnings)) {
    lines.push_back(TextOf(warning));
  }
  return lines;
}

}  // namespace kaldo

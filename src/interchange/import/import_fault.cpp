// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/import_fault.h"

#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

std::string TextOf(const ImportFault& fault) {
  std::string place = Escaped(fault.file);
  const auto add = [&place](const std::string& text) {
    place += place.empty() ? text : ", " + text;
  };
  if (fault.line != 0) {
    add(fmt::format("line {}", fault.line));
  }
  if (!fault.column.empty()) {
    add("column " + Quoted(fault.column));
  }
  if (!fault.sample.empty()) {
    place += fmt::format(" ({})", Escaped(fault.sample.substr(0, 60)));
  }
  return place.empty() ? EscapedLines(fault.found) : place + ": " + EscapedLines(fault.found);
}

void ImportFaults::Add(ImportFault fault) {
  constexpr std::size_t kMostKept = 100;
  if (kept.size() < kMostKept) {
    kept.push_back(std::move(fault));
  } else {
    ++more;
  }
}

std::string ImportFaults::Text() const {
  std::string text;
  for (const ImportFault& fault : kept) {
    text += TextOf(fault) + '\n';
  }
  return more == 0 ? text : text + fmt::format("... and {} more\n", more);
}

}  // namespace kaldo

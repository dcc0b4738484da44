// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

namespace kaldo {

/// Walks through the lines of a text that the program wrote: they end with "\n". It refers to the
/// text.
class ReportLines {
 public:
  explicit ReportLines(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }

  /// The next line without its end; an empty one behind the last.
  std::string_view Next();

  /// Goes on behind the next line that starts so.
  void SkipBehind(std::string_view start);

 private:
  std::string_view rest_;
};

/// What stands between the tabs of a line.
std::vector<std::string_view> CellsOf(std::string_view line);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/confidence_level_setting.h"

#include <fmt/format.h>

namespace kaldo {

ValueKind<double> ConfidenceLevelKind() {
  ValueKind<double> kind = RealKind();
  kind.parse = [real = kind.parse](std::string_view option,
                                   std::string_view text) -> tl::expected<double, Problem> {
    auto level = real(option, text);
    if (level && !IsConfidenceLevel(*level)) {
      return NotUnderstood(ProblemKind::kNotAConfidenceLevel,
                           fmt::format("{}: {} is not between 0.5 and 1", option, Quoted(text)));
    }
    return level;
  };
  kind.recorded = [](const std::string& key, RecordedSettings& recorded) {
    const double level = recorded.Optional<double>(key).value_or(kDefaultConfidenceLevel);
    if (!IsConfidenceLevel(level)) {
      recorded.Note(key, "is not between 0.5 and 1");
    }
    return level;
  };
  return kind;
}

}  // namespace kaldo

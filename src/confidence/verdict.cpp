// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/verdict.h"

#include <fmt/format.h>

#include "base/number_text.h"

namespace kaldo {

std::string_view Label(Verdict verdict) {
  switch (verdict) {
    case Verdict::kNamed:
      return "named";
    case Verdict::kUncollected:
      return "uncollected";
    case Verdict::kOpen:
      break;
  }
  return "open";
}

std::optional<Problem> ValidateConfidenceLevel(double level) {
  if (level >= 0.5 && level <= 1) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kConfidenceLevelOutOfRange,
                 .found = fmt::format("the level is {}", FormatDouble(level))};
}

Verdict DecideVerdict(double p_candidate, double p_uncollected, double level) {
  if (p_candidate >= level && p_candidate >= p_uncollected) {
    return Verdict::kNamed;
  }
  return p_uncollected >= level ? Verdict::kUncollected : Verdict::kOpen;
}

}  // namespace kaldo

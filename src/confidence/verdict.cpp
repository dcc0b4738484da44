// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/verdict.h"

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

bool IsConfidenceLevel(double level) { return level >= 0.5 && level <= 1; }

Verdict DecideVerdict(double p_candidate, double p_uncollected, double level) {
  if (p_candidate >= level && p_candidate >= p_uncollected) {
    return Verdict::kNamed;
  }
  return p_uncollected >= level ? Verdict::kUncollected : Verdict::kOpen;
}

}  // namespace kaldo

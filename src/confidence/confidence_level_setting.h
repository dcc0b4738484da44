// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "confidence/verdict.h"
#include "runs/value_kinds.h"

namespace kaldo {

/// A level of confidence, see IsConfidenceLevel. A record that does not tell it has the default.
ValueKind<double> ConfidenceLevelKind();

/// The level of the verdicts, at its place in the settings of a run.
template <typename Settings, typename Place>
Setting<Settings> ConfidenceLevelSetting(Place place) {
  return {.key = "confidence_level",
          .option = "--confidence-level",
          .metavar = "LEVEL",
          .group = "Method",
          .help =
              "A parent is named, or called uncollected, when that is at least so probable, "
              "0.5 to 1",
          .value = ValueAt<Settings>(place, ConfidenceLevelKind())};
}

}  // namespace kaldo

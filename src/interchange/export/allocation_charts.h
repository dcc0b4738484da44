// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "confidence/confidence_summary.h"
#include "interchange/export/exported_study.h"
#include "interchange/export/html_text.h"

namespace kaldo {

/// A bar chart with the sentence below it.
struct CaptionedChart {
  std::string title;
  std::vector<Bar> bars;
  std::string caption;
};

/// Offspring by the allocation of both parents.
CaptionedChart ClassChart(const ExportedStudy& study);

/// Sides, two per offspring, by what can be said of their parent.
CaptionedChart VerdictChart(const ExportedStudy& study, const ConfidenceSummary& summary);

/// Allocations to a collected parent by the probability that they are right.
CaptionedChart ProbabilityChart(const ExportedStudy& study, const ConfidenceSummary& summary);

/// Collected parents by the number of offspring allocated to them.
CaptionedChart ParentsChart(const ExportedStudy& study);

}  // namespace kaldo

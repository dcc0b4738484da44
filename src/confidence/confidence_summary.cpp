// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/confidence_summary.h"

#include <fmt/format.h>

#include "confidence/certainty.h"

namespace kaldo {

namespace {

void CountVerdict(const SideConfidence& side, ConfidenceSummary& summary) {
  switch (CertaintyOf(side)) {
    case Certainty::kSure:
      ++summary.surely_named;
      break;
    case Certainty::kLikely:
      ++summary.named;
      break;
    case Certainty::kOpen:
      ++summary.open;
      break;
    case Certainty::kUncollected:
      ++summary.uncollected;
      break;
  }
  if (side.verdict == Verdict::kNamed) {
    summary.wrong_names += 1 - side.candidate->probability;
  }
}

void CountReported(double probability, ConfidenceSummary& summary) {
  ++summary.reported;
  summary.reported_improbable += probability < kImprobable ? 1U : 0U;
  summary.wrong_reported += 1 - probability;
}

}  // namespace

ConfidenceSummary SummaryOf(std::span<const OffspringConfidence> offspring,
                            std::span<const ReportedParents> reported) {
  ConfidenceSummary summary;
  for (std::size_t i = 0; i < offspring.size(); ++i) {
    for (std::size_t k = 0; k < 2; ++k) {
      const SideConfidence& side = offspring[i].sides[k];
      CountVerdict(side, summary);
      if (!reported.empty() && reported[i][k] && side.p_reported) {
        CountReported(*side.p_reported, summary);
      }
    }
  }
  return summary;
}

std::string SidesSentence(const ConfidenceSummary& sides) {
  return fmt::format(
      "Of the {} parents of the offspring {} are sure, {} likely, {} open and {} not collected; of "
      "the {} that are named {:.1f} are expected to be wrong.",
      sides.Sides(), sides.surely_named, sides.named, sides.open, sides.uncollected, sides.Named(),
      sides.wrong_names);
}

}  // namespace kaldo

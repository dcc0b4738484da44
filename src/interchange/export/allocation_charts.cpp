// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/allocation_charts.h"

#include <algorithm>
#include <array>
#include <map>

#include <fmt/format.h>

#include "allocation/findings.h"
#include "allocation/parent_summary.h"
#include "base/counted_text.h"
#include "confidence/certainty.h"

namespace kaldo {

namespace {

std::vector<Bar> BarsByProbability(const ExportedStudy& study) {
  constexpr std::array<double, 5> kFrom = {0, 0.5, 0.8, 0.95, 0.99};
  std::vector<Bar> bars(kFrom.size());
  for (std::size_t k = 0; k < kFrom.size(); ++k) {
    bars[k].label = k + 1 < kFrom.size() ? fmt::format("{:g} to {:g}", kFrom.at(k), kFrom.at(k + 1))
                                         : fmt::format("{:g} to 1", kFrom.at(k));
  }
  for (std::size_t place = 0; place < study.NumberOfOffspring(); ++place) {
    for (const ExportedSide& side : study.Offspring(place).sides) {
      if (side.Parent() && side.probability) {
        const auto* const above = std::upper_bound(kFrom.begin(), kFrom.end(), *side.probability);
        bars[static_cast<std::size_t>(above - kFrom.begin()) - 1].value += 1;
      }
    }
  }
  return bars;
}

Bar Verdicts(Certainty certainty, std::size_t sides) {
  return {std::string(Word(certainty)), static_cast<double>(sides)};
}

}  // namespace

CaptionedChart ClassChart(const ExportedStudy& study) {
  CaptionedChart chart{"Offspring by the allocation of both parents",
                       {},
                       fmt::format("Offspring by the allocation of both parents. {}",
                                   ClassLegend(study.Settings().flow))};
  for (const AllocationShare& share : study.Result().LastShares().pairs) {
    chart.bars.push_back({std::string(share.name), share.number});
  }
  return chart;
}

CaptionedChart VerdictChart(const ExportedStudy& study, const ConfidenceSummary& summary) {
  const double level = study.Settings().confidence.level;
  return {"Sides by verdict",
          {Verdicts(Certainty::kSure, summary.surely_named),
           Verdicts(Certainty::kLikely, summary.named), Verdicts(Certainty::kOpen, summary.open),
           Verdicts(Certainty::kUncollected, summary.uncollected)},
          fmt::format("Sides, two per offspring, by what can be said of their parent at a level of "
                      "{:g}: {} where it is named at {:g} or more, {} where it is named with less.",
                      level, Word(Certainty::kSure), std::max(level, kSureLevel),
                      Word(Certainty::kLikely))};
}

CaptionedChart ProbabilityChart(const ExportedStudy& study, const ConfidenceSummary& summary) {
  return {"Allocations by probability", BarsByProbability(study),
          fmt::format("Allocations to a collected parent by the probability that they are right. "
                      "Of these {} sides, {} have a probability below {:g}, and {:.1f} are "
                      "expected to be wrong.",
                      summary.reported, summary.reported_improbable, kImprobable,
                      summary.wrong_reported)};
}

CaptionedChart ParentsChart(const ExportedStudy& study) {
  constexpr std::size_t kMostBars = 30;
  std::map<std::size_t, std::size_t> parents_by_offspring;
  for (const ParentSummary& parent :
       SummariesOfParents(study.Settings().flow, study.Input(), study.Result())) {
    ++parents_by_offspring[parent.offspring];
  }
  CaptionedChart chart{"Collected parents by their number of offspring",
                       {},
                       "Collected parents by the number of offspring allocated to them."};
  for (const auto& [offspring, parents] : parents_by_offspring) {
    if (chart.bars.size() < kMostBars) {
      chart.bars.push_back(
          {Counted(offspring, "offspring", "offspring"), static_cast<double>(parents)});
    } else {
      chart.bars.back().label = "more offspring";
      chart.bars.back().value += static_cast<double>(parents);
    }
  }
  return chart;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/reliability_report.h"

#include "runs/tsv_row.h"

namespace kaldo {

namespace {

std::optional<double> Ratio(double part, std::uint64_t whole) {
  return whole == 0 ? std::nullopt : std::optional(part / static_cast<double>(whole));
}

void AddCells(const NamedSides& named, std::uint64_t collected_sides, TsvRow& row) {
  const auto right = static_cast<double>(named.right);
  row.Whole(named.sides).Whole(named.right).NumberIfAny(Ratio(right, collected_sides));
  row.Number(named.ExpectedWrong()).Whole(named.Wrong());
  row.NumberIfAny(Ratio(named.probabilities, named.sides)).NumberIfAny(Ratio(right, named.sides));
}

}  // namespace

std::string ReliabilityReport(const Reliability& reliability, double wanted_level) {
  TsvRow head;
  for (const std::string_view column :
       {"row", "from", "to", "sides_named", "sides_found", "share_found", "wrong_predicted",
        "wrong_counted", "predicted", "observed"}) {
    head.Plain(column);
  }
  std::string text = head.Line();
  const auto levels = ReliabilityLevels(wanted_level);
  for (std::size_t k = 0; k < levels.size(); ++k) {
    TsvRow row;
    row.Plain("level").Number(levels[k]).Number(1);
    AddCells(reliability.levels[k], reliability.collected_sides, row);
    text += row.Line();
  }
  for (std::size_t k = 0; k < reliability.bins.size(); ++k) {
    TsvRow row;
    row.Plain("bin").Number(kReliabilityLimits[k]).Number(kReliabilityLimits[k + 1]);
    AddCells(reliability.bins[k], reliability.collected_sides, row);
    text += row.Line();
  }
  return text;
}

}  // namespace kaldo

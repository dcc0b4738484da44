// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/scan_report.h"

#include "runs/tsv_row.h"
#include "simulation/reports/simulation_texts.h"

namespace kaldo {

namespace {

/// The columns of a figure that each parental set has.
void AddSetColumns(Flow flow, const std::string& figure, TsvRow& head) {
  if (flow == Flow::kNonSexed) {
    head.Plain(figure);
    return;
  }
  head.Plain(figure + "_males").Plain(figure + "_females");
}

}  // namespace

std::string ClassColumn(std::string_view label) {
  std::string column;
  for (const char character : label) {
    if (character != ' ' && character != ':') {
      column += character == 'X' ? 'x' : character;
    }
  }
  return column;
}

std::string ScanReport(Flow flow, const std::vector<ScanRow>& rows) {
  TsvRow head;
  head.Plain("tolerance");
  AddSetColumns(flow, "uncollected", head);
  head.Plain("any").Plain("any_se");
  AddSetColumns(flow, "to_collected", head);
  head.Plain("to_uncollected");
  const auto& origins = TextsOf(flow).origins;
  for (std::size_t k = 0; k + 1 < origins.size(); ++k) {
    head.Plain("any_" + ClassColumn(origins[k].label));
  }
  std::string text = head.Plain("best").Line();
  for (const ScanRow& of_run : rows) {
    TsvRow row;
    row.Whole(of_run.tolerance.Value());
    for (const double uncollected : of_run.uncollected) {
      row.Number(uncollected);
    }
    row.Number(of_run.any).NumberIfAny(of_run.any_error);
    for (const double to_collected : of_run.to_collected) {
      row.Number(to_collected);
    }
    row.Number(of_run.to_uncollected);
    for (const auto& of_class : of_run.by_class) {
      row.NumberIfAny(of_class);
    }
    text += row.Plain(of_run.is_best ? "yes" : "no").Line();
  }
  return text;
}

}  // namespace kaldo

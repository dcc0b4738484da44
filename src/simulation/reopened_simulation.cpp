// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reopened_simulation.h"

#include <cmath>

#include "base/number_text.h"
#include "base/report_lines.h"
#include "simulation/reports/estimate_texts.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_texts.h"

namespace kaldo {

namespace {

/// The number in a cell; not a number for "NA" and whatever else is none.
double NumberIn(std::string_view cell) {
  const std::size_t begin = cell.find_first_not_of(' ');
  return begin == std::string_view::npos
             ? Estimate::kNone
             : ParseDouble(cell.substr(begin)).value_or(Estimate::kNone);
}

Estimate& EstimateOfKind(KindEstimates& estimates, AllocationKind kind) {
  return estimates.at(static_cast<std::size_t>(kind));
}

/// The averages of the next section of that title, in its order.
std::vector<double> AveragesOf(const AverageSection& section, ReportLines& lines) {
  lines.SkipBehind(section.title);
  std::vector<double> averages;
  averages.reserve(section.averages.size());
  for (std::size_t k = 0; k < section.averages.size(); ++k) {
    averages.push_back(NumberIn(CellsOf(lines.Next()).back()));
  }
  return averages;
}

/// Whether a probability of 0 at that place may mean that such allocations were never made. How
/// many were left as UC, which comes last, the sexed flow does not tell.
bool MayBeNeverMade(const std::vector<double>& made, std::size_t place) {
  return place >= made.size() || made[place] == 0;
}

/// The estimated probabilities at the head of the summary, those of the last subset. Of a kind of
/// allocation that was never made there is none, where the summary has a 0.
bool ReadProbabilities(Flow flow, ReportLines& lines, SubsetFigures& subset) {
  const auto& sections = TextsOf(flow).averages;
  const auto made = AveragesOf(sections[sections.size() - 2], lines);  // of all kinds but "any"
  const auto right = AveragesOf(sections.back(), lines);
  const auto kinds = EstimateKinds(flow);
  for (std::size_t k = 0; k < kinds.size(); ++k) {
    if (std::isnan(right[k])) {
      return false;
    }
    EstimateOfKind(subset.estimates.population, kinds[k].kind).value =
        k > 0 && right[k] == 0 && MayBeNeverMade(made, k - 1) ? Estimate::kNone : right[k];
  }
  subset.probabilities.any =
      EstimateOfKind(subset.estimates.population, AllocationKind::kAny).value;
  return true;
}

/// A row of the table of correct frequencies: an empty cell stands before the origins.
std::vector<double> FrequenciesIn(const std::vector<std::string_view>& cells) {
  std::vector<double> values;
  values.reserve(cells.size());
  for (std::size_t k = 2; k < cells.size(); ++k) {
    values.push_back(NumberIn(cells[k]));
  }
  return values;
}

/// How often decisions were correct in every iteration, by origin.
bool ReadFrequencies(ReportLines& lines, std::vector<OriginStatistics>& origins) {
  lines.SkipBehind("Iteration # :");
  bool has_average = false;
  bool has_deviation = false;
  while (!lines.AtEnd() && !has_deviation) {
    const auto cells = CellsOf(lines.Next());
    if (cells.size() == 1) {
      continue;  // an empty line
    }
    const auto values = FrequenciesIn(cells);
    if (values.size() != origins.size()) {
      return false;
    }
    has_deviation = cells.front() == "SD";
    for (std::size_t k = 0; k < origins.size(); ++k) {
      IterationSeries& correct = origins[k].correct;
      if (has_deviation) {
        correct.spread.deviation = values[k];
      } else if (cells.front() == "Average") {
        correct.spread.mean = values[k];
        has_average = true;
      } else {
        correct.values.push_back(values[k]);
      }
    }
  }
  return has_average && has_deviation;
}

std::vector<OriginStatistics> EmptyOrigins(const SimulationInput& input) {
  std::vector<OriginStatistics> origins(input.class_sizes.size() + 1);
  for (std::size_t k = 0; k < input.class_sizes.size(); ++k) {
    origins[k].offspring = input.class_sizes[k];
    origins[k].is_empty = input.class_sizes[k] == 0;
  }
  origins.back().offspring = static_cast<std::int32_t>(input.OffspringPerIteration());
  return origins;
}

/// A row of the subsets: rank, run, size, loci, iterations, and three cells for each estimate.
bool ReadSubset(Flow flow, const SimulationInput& input, const std::vector<std::string_view>& cells,
                std::vector<SubsetFigures>& subsets) {
  constexpr std::size_t kBefore = 5;
  const auto scopes = EstimateScopes(flow).size();
  const auto kinds = EstimateKinds(flow);
  const auto run = cells.size() > 1 ? ParseInteger(cells[1]) : std::nullopt;
  if (!run || *run < 1 || static_cast<std::size_t>(*run) > subsets.size() ||
      cells.size() != kBefore + 3 * scopes * kinds.size()) {
    return false;
  }
  const auto place = static_cast<std::size_t>(*run) - 1;
  SubsetFigures& subset = subsets[place];
  subset.loci = input.subsets.At(place);
  subset.iterations = ParseInteger(cells[kBefore - 1]).value_or(0);
  subset.estimates.classes.resize(scopes - 2);
  std::size_t cell = kBefore;
  for (std::size_t scope = 0; scope < scopes; ++scope) {
    KindEstimates& estimates = scope == 0   ? subset.estimates.population
                               : scope == 1 ? subset.estimates.pooled
                                            : subset.estimates.classes[scope - 2];
    for (const EstimateKind& kind : kinds) {
      EstimateOfKind(estimates, kind.kind) = {NumberIn(cells[cell]), NumberIn(cells[cell + 1]),
                                              NumberIn(cells[cell + 2])};
      cell += 3;
    }
  }
  subset.probabilities.any =
      EstimateOfKind(subset.estimates.population, AllocationKind::kAny).value;
  return true;
}

std::optional<Problem> ReadSubsets(Flow flow, const SimulationInput& input,
                                   const RecordedReports& reports, SimulationResult& result) {
  const auto text = reports.Read(kSubsetsFile);
  if (!text) {
    return text.error();
  }
  ReportLines lines(*text);
  lines.Next();  // the heads
  std::vector<std::vector<std::string_view>> rows;
  while (!lines.AtEnd()) {
    rows.push_back(CellsOf(lines.Next()));
  }
  if (rows.empty() || rows.size() > input.subsets.Count()) {
    return reports.Unreadable(kSubsetsFile);
  }
  result.subsets.resize(rows.size());
  for (const auto& cells : rows) {
    if (!ReadSubset(flow, input, cells, result.subsets)) {
      return reports.Unreadable(kSubsetsFile);
    }
  }
  for (const SubsetFigures& subset : result.subsets) {
    if (subset.loci.empty()) {  // a row came twice in place of this one
      return reports.Unreadable(kSubsetsFile);
    }
  }
  return std::nullopt;
}

std::optional<Problem> ReadSummary(const SimulationSettings& settings, const SimulationInput& input,
                                   const RecordedReports& reports, SimulationResult& result) {
  const auto text = reports.Read(kSummaryFile);
  if (!text) {
    return text.error();
  }
  result.criterion_reached = text->find("\nYour success criteria ( ") != std::string::npos;
  ReportLines lines(*text);
  SubsetFigures last;
  last.loci = input.subsets.At(0);
  last.estimates.classes.resize(input.class_sizes.size());
  result.origins = EmptyOrigins(input);
  if (!ReadProbabilities(settings.flow, lines, last) || !ReadFrequencies(lines, result.origins)) {
    return reports.Unreadable(kSummaryFile);
  }
  last.iterations = static_cast<std::int32_t>(result.Global().correct.values.size());
  if (result.subsets.empty()) {
    result.subsets.push_back(std::move(last));
  }
  return std::nullopt;
}

}  // namespace

tl::expected<SimulationRun, Problem> ReopenSimulation(const SimulationSettings& settings,
                                                      const RunRecord& record,
                                                      const RecordedReports& reports) {
  auto input = LoadSimulationInput(settings);
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  SimulationResult result;
  result.seed = record.seed.value_or(settings.seed.value_or(0));
  result.folder = record.folder;
  result.threads = static_cast<unsigned>(record.threads);
  result.started = TimeOfDate(record.date);
  result.duration = std::chrono::duration<double>(record.duration_seconds);
  if (settings.strategy != LociStrategy::kChoice) {
    if (auto problem = ReadSubsets(settings.flow, *input, reports, result)) {
      return tl::unexpected(std::move(*problem));
    }
  }
  if (auto problem = ReadSummary(settings, *input, reports, result)) {
    return tl::unexpected(std::move(*problem));
  }
  if (reports.Has(kSteppingErrorFile)) {
    auto text = reports.Read(kSteppingErrorFile);
    if (!text) {
      return tl::unexpected(std::move(text.error()));
    }
    result.stepping = {.text = std::move(*text), .any_out_of_step = true};
  }
  return SimulationRun{std::move(*input), std::move(result)};
}

}  // namespace kaldo

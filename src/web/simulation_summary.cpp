// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include "cli/simulation_result_text.h"
#include "interchange/export/simulation_tables.h"
#include "simulation/reports/estimate_texts.h"
#include "simulation/simulation_command.h"
#include "simulation/simulation_record.h"
#include "simulation/trial_of_allocation.h"
#include "web/summary_json.h"

namespace kaldo {

namespace {

std::string HeadlineOf(const SimulationResult& result) {
  const Estimate& any =
      EstimateOfKind(result.LastSubset().estimates.population, AllocationKind::kAny);
  std::string text = fmt::format("Estimated probability that any allocation is correct: {:.4f}",
                                 result.LastSubset().probabilities.any);
  if (const Json error = FigureJson(any.error); !error.is_null()) {
    text += fmt::format(" (standard error {:.4f})", any.error);
  }
  return text + ".";
}

Json EstimatesChart(const SimulationSettings& settings, const SimulationResult& result) {
  Json bars = Json::array();
  for (const EstimateKind& kind : EstimateKinds(settings.flow)) {
    const Estimate& estimate = EstimateOfKind(result.LastSubset().estimates.population, kind.kind);
    bars.push_back({{"label", kind.words},
                    {"value", FigureJson(estimate.value)},
                    {"deviation", FigureJson(estimate.deviation)}});
  }
  return {{"title", "How probably allocations are correct, in the population"},
          {"caption", "Mean of the iterations, and their standard deviation as a thin line."},
          {"share", true},
          {"bars", std::move(bars)}};
}

Json OriginsChart(const SimulationSettings& settings, const SimulationResult& result) {
  Json bars = Json::array();
  for (std::size_t k = 0; k < result.origins.size(); ++k) {
    const OriginStatistics& origin = result.origins[k];
    const bool is_all = k + 1 == result.origins.size();
    const auto figure = [&](double value) { return origin.is_empty ? Json() : FigureJson(value); };
    bars.push_back({{"label", is_all ? "GLOBAL" : ClassName(settings.flow, k)},
                    {"value", figure(origin.correct.spread.mean)},
                    {"deviation", figure(origin.correct.spread.deviation)}});
  }
  return {{"title", "Correct decisions by origin of the offspring"},
          {"caption",
           "C: a collected parent, U: one that was not. GLOBAL weighs the classes by "
           "their share in the population."},
          {"share", true},
          {"bars", std::move(bars)}};
}

Json SubsetsChart(const SimulationSettings& settings, const SimulationRun& run) {
  Json labels = Json::array();
  Json lines = Json::array();
  for (const EstimateKind& kind : EstimateKinds(settings.flow)) {
    Json values = Json::array();
    for (const SubsetFigures& subset : run.result.subsets) {
      values.push_back(FigureJson(EstimateOfKind(subset.estimates.population, kind.kind).value));
    }
    lines.push_back({{"name", kind.column}, {"values", std::move(values)}});
  }
  for (const SubsetFigures& subset : run.result.subsets) {
    labels.push_back(std::to_string(subset.loci.size()));
  }
  return {{"title", "Correct allocations in the population, by subset of loci"},
          {"caption", "Subsets in the order in which they ran, with their numbers of loci."},
          {"labels", std::move(labels)},
          {"lines", std::move(lines)}};
}

Json EstimatesTable(Flow flow, const SimulationResult& result) {
  Json columns = Json::array();
  for (const char* const head : {"pseudo-offspring", "allocation", "correct", "sd", "se"}) {
    columns.push_back({{"head", head}, {"numeric", columns.size() > 1}});
  }
  const auto scopes = EstimateScopes(flow);
  Json rows = Json::array();
  for (std::size_t scope = 0; scope < scopes.size(); ++scope) {
    const KindEstimates& estimates = EstimatesIn(result.LastSubset().estimates, scope);
    for (const EstimateKind& kind : EstimateKinds(flow)) {
      const Estimate& estimate = EstimateOfKind(estimates, kind.kind);
      rows.push_back(Json::array({scopes[scope].brief, kind.words, FigureJson(estimate.value),
                                  FigureJson(estimate.deviation), FigureJson(estimate.error)}));
    }
  }
  return {{"columns", std::move(columns)}, {"rows", std::move(rows)}};
}

}  // namespace

Json SummaryJson(const ShownSimulation& simulation) {
  const auto& [settings, run] = simulation;
  Json summary = {
      {"title", settings.flow == Flow::kSexed ? "Sexed simulation" : "Non-sexed simulation"},
      {"headline", HeadlineOf(run.result)},
      {"notes",
       Json::array({fmt::format("The seed of the random numbers was {}.", run.result.seed)})},
      {"trial", TrialSentence(settings, run.result)},
      {"check", Json::array()},
      {"warnings", RecordOf(settings, run.input, run.result).warnings},
      {"text", EscapedLines(ShortResult(settings, run, {}))},
      {"command", Escaped(CommandOf(settings))},
      {"certainty", false},
      {"charts", {EstimatesChart(settings, run.result), OriginsChart(settings, run.result)}},
      {"tables", {"estimates", "iterations"}}};
  if (run.result.subsets.size() > 1) {
    summary["charts"].push_back(SubsetsChart(settings, run));
    summary["tables"].push_back("subsets");
  }
  return summary;
}

Json ResultTableJson(const ShownSimulation& simulation, std::string_view name) {
  const auto& [settings, run] = simulation;
  if (name == "estimates") {
    return EstimatesTable(settings.flow, run.result);
  }
  if (name == "iterations") {
    return TableJson(IterationsTable(settings, run.result));
  }
  if (name == "subsets") {
    return TableJson(SubsetsTable(settings, run.input, run.result));
  }
  return {};
}

}  // namespace kaldo

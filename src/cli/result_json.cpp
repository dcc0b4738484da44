// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/result_json.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "allocation/allocation_confidence.h"
#include "allocation/allocation_record.h"
#include "allocation/findings.h"
#include "base/version.h"
#include "confidence/confidence_summary.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

using Json = nlohmann::ordered_json;

/// Nothing for what is no number.
Json Figure(double value) { return std::isfinite(value) ? Json(value) : Json(); }

Json HeadOf(std::string_view flow, const std::string& folder) {
  return {{"program", "KALDO"},
          {"version", std::string(Version())},
          {"flow", std::string(flow)},
          {"folder", folder}};
}

Json ShareJson(const AllocationShares& shares) {
  Json json = Json::array();
  const auto add = [&json](const AllocationShare& share) {
    json.push_back({{"name", std::string(share.name)},
                    {"number", share.number},
                    {"share", Figure(share.quotient)}});
  };
  std::for_each(shares.singles.begin(), shares.singles.end(), add);
  std::for_each(shares.pairs.begin(), shares.pairs.end(), add);
  return json;
}

Json SequenceJson(const AllocationRun& run) {
  Json json = Json::array();
  for (std::size_t k = 0; k < run.result.shares.size(); ++k) {
    json.push_back({{"loci", k + 1},
                    {"entered", run.input.loci.Name(run.input.combinations[k].back())},
                    {"sides_collected", Figure(run.result.shares[k].sides_collected)}});
  }
  return json;
}

/// Null where it was not computed.
Json ConfidenceJson(const AllocationSettings& settings, const AllocationResult& result) {
  if (!KnowsCertainty(result)) {
    return {};
  }
  const auto& confidence = *result.confidence;
  const auto summary = SummaryOf(confidence.offspring, ReportedBy(settings.flow, result));
  return {{"parents_collected", Figure(confidence.shares.collected)},
          {"standard_error", Figure(confidence.shares.standard_error)},
          {"level", settings.confidence.level},
          {"sides_named", summary.Named()},
          {"sides_surely_named", summary.surely_named},
          {"sides_open", summary.open},
          {"sides_uncollected", summary.uncollected},
          {"wrong_names_expected", Figure(summary.wrong_names)},
          {"sides_allocated", summary.reported},
          {"wrong_allocations_expected", Figure(summary.wrong_reported)}};
}

/// In ASCII, whatever bytes the names hold.
std::string Dumped(const Json& json) {
  constexpr int kIndent = 2;
  return json.dump(kIndent, ' ', true, Json::error_handler_t::replace) + '\n';
}

}  // namespace

std::string ResultJson(const AllocationSettings& settings, const AllocationRun& run,
                       const std::vector<std::string>& exports) {
  const auto& [input, result] = run;
  const auto count = [&outcomes = result.outcomes](auto is_one) {
    return std::count_if(outcomes.begin(), outcomes.end(), is_one);
  };
  Json json = HeadOf(AllocationFlowName(settings.flow), settings.project);
  json["parents"] = input.NumberOfParents();
  json["groups"] = input.groups.size();
  json["offspring"] = input.NumberOfOffspring();
  json["missing_loci"] = input.NumberOfMissingGenotypes();
  json["loci_in_use"] = input.loci.LociInUse().size();
  json["allocations"] = ShareJson(result.LastShares());
  json["sequence"] = settings.sequence ? SequenceJson(run) : Json::array();
  json["offspring_with_ties"] = count(HasSeveralPairs);
  json["offspring_without_pair"] = count([](const auto& outcome) { return !outcome.HasPair(); });
  json["confidence"] = ConfidenceJson(settings, result);
  json["warnings"] = RecordOf(settings, input, result).warnings;
  json["exports"] = exports;
  return Dumped(json);
}

std::string ResultJson(const SimulationSettings& settings, const SimulationRun& run,
                       const std::vector<std::string>& exports) {
  const auto& [input, result] = run;
  const SimulationTexts& texts = TextsOf(settings.flow);
  Json json = HeadOf(SimulationFlowName(settings.flow), settings.project);
  json["seed"] = result.seed;
  json["candidate_parents"] = input.candidates.Size();
  json["true_parents"] = input.NumberOfParents();
  json["offspring_per_iteration"] = input.OffspringPerIteration();
  json["iterations"] = settings.iterations;
  json["origins"] = Json::array();
  for (std::size_t k = 0; k < result.origins.size(); ++k) {
    const OriginStatistics& origin = result.origins[k];
    const std::string_view label = texts.origins[k].label;
    const auto figure = [&](double value) { return origin.is_empty ? Json() : Figure(value); };
    json["origins"].push_back(
        {{"name", std::string(label.substr(0, label.find_last_not_of(" :\t") + 1))},
         {"offspring", origin.offspring},
         {"correct", figure(origin.correct.spread.mean)},
         {"sd", figure(origin.correct.spread.deviation)}});
  }
  const CorrectProbabilities& probabilities = result.LastSubset().probabilities;
  json["any_allocation_correct"] = Figure(probabilities.any);
  json["uncollected_correct"] = Figure(probabilities.to_uncollected);
  json["subsets"] = result.subsets.size();
  json["loci"] = Json::array();
  for (const LocusIndex locus : result.LastSubset().loci) {
    json["loci"].push_back(input.loci.Name(locus));
  }
  json["warnings"] = RecordOf(settings, input, result).warnings;
  json["exports"] = exports;
  return Dumped(json);
}

}  // namespace kaldo

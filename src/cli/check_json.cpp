// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/check_json.h"

#include <nlohmann/json.hpp>

#include "base/version.h"

namespace kaldo {

namespace {

using Json = nlohmann::ordered_json;

/// A Problem or a Warning; what does not apply is left out.
template <typename Found>
Json Placed(std::string sentence, const Found& found) {
  Json json{{"sentence", std::move(sentence)}};
  const auto add = [&json](const char* key, const auto& value) {
    if (value != std::decay_t<decltype(value)>{}) {
      json[key] = value;
    }
  };
  add("file", found.file);
  add("line", found.line);
  add("record", found.record);
  add("individual", found.individual);
  if constexpr (std::is_same_v<Found, Problem>) {
    add("locus", found.locus);
  }
  add("found", found.found);
  return json;
}

std::string SentenceOf(const Warning& warning) {
  return std::string(kWarningSentences.at(static_cast<std::size_t>(warning.kind)).text);
}

template <typename Found>
void AddAll(const AlikeGroups<Found>& groups, const char* key, Json& json) {
  Json told = Json::array();
  Json more = Json::array();
  for (const auto& group : groups.Groups()) {
    for (const Found& found : group.kept) {
      told.push_back(Placed(SentenceOf(found), found));
    }
    if (group.more > 0) {
      more.push_back({{"sentence", SentenceOf(group.kept.front())},
                      {"file", group.kept.front().file},
                      {"count", group.more}});
    }
  }
  json[key] = std::move(told);
  json[std::string("more_") + key] = std::move(more);
}

template <typename Value>
Json OrNull(const std::optional<Value>& value) {
  return value ? Json(*value) : Json();
}

Json LocusJson(const LocusStatistics& locus) {
  Json alleles = Json::array();
  for (const auto& [size, copies] : locus.alleles) {
    alleles.push_back({{"size", size.Value()}, {"copies", copies}});
  }
  return {{"name", locus.name},
          {"in_use", locus.in_use},
          {"alleles", std::move(alleles)},
          {"unit_distance", locus.unit_distance ? Json(locus.unit_distance->Value()) : Json()},
          {"in_step", locus.in_step},
          {"individuals", locus.individuals},
          {"undefined_genotypes", locus.undefined},
          {"observed_heterozygosity", OrNull(locus.observed_heterozygosity)},
          {"expected_heterozygosity", OrNull(locus.expected_heterozygosity)}};
}

Json FolderJson(const FolderCheck& folder) {
  Json json{{"folder", folder.folder}, {"exists", folder.exists}, {"sound", folder.IsSound()}};
  json["holds"] = folder.earlier
                      ? Json{{"flow", folder.earlier->flow}, {"date", folder.earlier->date}}
                      : Json();
  Json obstacles = Json::array();
  for (const std::string& sentence : folder.obstacles) {
    obstacles.push_back({{"sentence", sentence}});
  }
  for (const Problem& refusal : folder.refusals) {
    obstacles.push_back(Placed(SentenceOf(refusal), refusal));
  }
  json["obstacles"] = std::move(obstacles);
  return json;
}

Json ForecastJson(const RunForecast& forecast) {
  Json classes = Json::array();
  for (const ClassForecast& of_class : forecast.classes) {
    classes.push_back({{"name", of_class.name},
                       {"pseudo_offspring", of_class.pseudo_offspring},
                       {"weight", of_class.weight}});
  }
  return {{"classes", std::move(classes)},
          {"subsets", forecast.subsets},
          {"subsets_in_all", forecast.subsets_in_all},
          {"iterations", forecast.iterations},
          {"random_draws", forecast.draws},
          {"threads", forecast.threads},
          {"expected_seconds", forecast.seconds},
          {"takes_at_least_that", forecast.is_at_least},
          {"may_end_earlier", forecast.is_at_most}};
}

}  // namespace

std::string JsonText(const FullCheck& check, const std::optional<RunForecast>& forecast) {
  Json json{{"program", "KALDO"},
            {"version", std::string(Version())},
            {"flow", check.flow},
            {"sound", check.IsSound()}};
  AddAll(check.faults, "faults", json);
  AlikeGroups<Warning> warnings;
  warnings.AddAll(check.warnings);
  AddAll(warnings, "warnings", json);
  json["loci"] = Json::array();
  for (std::size_t k = 0; k < check.loci.size(); ++k) {
    Json locus = LocusJson(check.loci[k]);
    if (!check.off_ladder.empty()) {
      locus["errors_off_ladder"] = OrNull(check.off_ladder[k]);
    }
    json["loci"].push_back(std::move(locus));
  }
  json["project"] = check.project ? FolderJson(*check.project) : Json();
  if (forecast) {
    json["simulation"] = ForecastJson(*forecast);
  }
  // Names may be in any bytes, and a terminal must not obey them.
  constexpr int kIndent = 2;
  return json.dump(kIndent, ' ', true, Json::error_handler_t::replace) + '\n';
}

}  // namespace kaldo

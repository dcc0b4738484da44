// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_record.h"

#include <array>
#include <filesystem>

#include <fmt/format.h>

#include "allocation/error_model_record.h"
#include "base/version.h"

namespace kaldo {

namespace {

constexpr std::array<std::string_view, 4> kStrategies = {"choice", "all", "minimal", "cumulative"};

/// "pseudo_collected_sample" of the males is "males_pseudo_collected_sample" in the record.
std::string KeyOf(Flow flow, std::size_t set, std::string_view name) {
  if (flow == Flow::kNonSexed) {
    return std::string(name);
  }
  return fmt::format("{}_{}", set == 0 ? "males" : "females", name);
}

void RecordSet(const SimulationSettings& settings, std::size_t number, RunRecord& record) {
  const ParentalSet& set = settings.sets.at(number);
  const auto add = [&](std::string_view name, const RecordValue& value) {
    record.settings.emplace_back(KeyOf(settings.flow, number, name), value);
  };
  if (settings.procedure == Procedure::kParental) {
    add("collected", set.collected_file);
  } else {
    add("pseudo_collected_sample", set.pseudo_collected_sample);
    add("pseudo_collected", std::int64_t{set.pseudo_collected});
  }
  add("uncollected_sample", set.uncollected_sample);
  add("uncollected", set.uncollected);
  if (settings.flow == Flow::kSexed) {
    add("estimated_collected", set.estimated_collected);
    add("estimated_uncollected", set.estimated_uncollected);
  }
}

ParentalSet RecordedSet(const SimulationSettings& settings, std::size_t number,
                        RecordedSettings& recorded) {
  ParentalSet set;
  const auto key = [&](std::string_view name) { return KeyOf(settings.flow, number, name); };
  if (settings.procedure == Procedure::kParental) {
    set.collected_file = recorded.Needed<std::string>(key("collected"));
  } else {
    set.pseudo_collected_sample = recorded.Needed<std::string>(key("pseudo_collected_sample"));
    set.pseudo_collected = recorded.WholeNumber(key("pseudo_collected"));
  }
  set.uncollected_sample = recorded.Needed<std::string>(key("uncollected_sample"));
  set.uncollected = recorded.Needed<double>(key("uncollected"));
  if (settings.flow == Flow::kSexed) {
    set.estimated_collected = recorded.Needed<double>(key("estimated_collected"));
    set.estimated_uncollected = recorded.Needed<double>(key("estimated_uncollected"));
  }
  return set;
}

std::vector<std::string> KeptNames(const KeptFiles& kept) {
  std::vector<std::string> names;
  if (kept.parents) {
    names.emplace_back("parents");
  }
  if (kept.offspring) {
    names.emplace_back("offspring");
  }
  if (kept.matrices) {
    names.emplace_back("matrices");
  }
  return names;
}

KeptFiles KeptFrom(const std::vector<std::string>& names, RecordedSettings& recorded) {
  KeptFiles kept;
  for (const std::string& name : names) {
    if (name == "parents") {
      kept.parents = true;
    } else if (name == "offspring") {
      kept.offspring = true;
    } else if (name == "matrices") {
      kept.matrices = true;
    } else {
      recorded.Note("keep", "names an unknown kind of file");
    }
  }
  return kept;
}

LociStrategy StrategyFrom(const std::string& name, RecordedSettings& recorded) {
  for (std::size_t i = 0; i < kStrategies.size(); ++i) {
    if (kStrategies.at(i) == name) {
      return static_cast<LociStrategy>(i);
    }
  }
  recorded.Note("strategy", "is none of choice, all, minimal, cumulative");
  return LociStrategy::kChoice;
}

}  // namespace

RunRecord RecordOf(const SimulationSettings& settings, const SimulationInput& input,
                   const SimulationResult& result) {
  RunRecord record;
  record.version = Version();
  record.date = DateText(result.started);
  record.flow = settings.flow == Flow::kSexed ? kSexedSimulationFlow : kNonSexedSimulationFlow;
  record.folder = std::filesystem::current_path().string();
  record.seed = result.seed;
  record.threads = result.threads;
  record.duration_seconds = result.duration.count();
  if (result.stepping.any_out_of_step) {
    record.warnings.emplace_back(kSteppingSentence);
  }
  const auto add = [&record](std::string_view name, RecordValue value) {
    record.settings.emplace_back(std::string(name), std::move(value));
  };
  add("project", settings.project);
  add("loci", settings.loci_file);
  add("procedure",
      std::string(settings.procedure == Procedure::kParental ? "parental" : "preparental"));
  for (std::size_t set = 0; set < settings.Sets().size(); ++set) {
    RecordSet(settings, set, record);
  }
  add("iterations", std::int64_t{settings.iterations});
  add("offspring_per_iteration", std::int64_t{settings.offspring_per_iteration});
  add("tolerance", std::int64_t{settings.tolerance.Value()});
  RecordErrorModel(settings.error_model, record);
  if (settings.loci_in_use) {
    add("use", *settings.loci_in_use);
  }
  add("strategy", std::string(kStrategies.at(static_cast<std::size_t>(settings.strategy))));
  add("criterion", settings.criterion);
  add("start_with", std::int64_t{settings.start_with});
  if (!settings.sequence.empty()) {
    add("sequence", std::vector<std::int64_t>(settings.sequence.begin(), settings.sequence.end()));
  }
  add("print_iterations", settings.print_iterations);
  add("print_subset_statistics", settings.print_subset_statistics);
  add("keep", KeptNames(KeptFilesOf(settings)));
  record.inputs = input.files;
  return record;
}

tl::expected<SimulationSettings, Problem> SimulationSettingsOf(const RunRecord& record,
                                                               const std::string& path) {
  SimulationSettings settings;
  RecordedSettings recorded(record);
  settings.flow = record.flow == kSexedSimulationFlow ? Flow::kSexed : Flow::kNonSexed;
  settings.project = recorded.Needed<std::string>("project");
  settings.loci_file = recorded.Needed<std::string>("loci");
  const auto procedure = recorded.Needed<std::string>("procedure");
  settings.procedure = procedure == "preparental" ? Procedure::kPreParental : Procedure::kParental;
  if (procedure != "preparental" && procedure != "parental") {
    recorded.Note("procedure", "is none of parental, preparental");
  }
  for (std::size_t set = 0; set < settings.Sets().size(); ++set) {
    settings.sets.at(set) = RecordedSet(settings, set, recorded);
  }
  settings.iterations = recorded.WholeNumber("iterations");
  settings.offspring_per_iteration = recorded.WholeNumber("offspring_per_iteration");
  settings.tolerance = OffsetTolerance{recorded.WholeNumber("tolerance")};
  settings.error_model = RecordedErrorModel(recorded);
  settings.loci_in_use = recorded.Optional<std::vector<std::string>>("use");
  settings.strategy = StrategyFrom(recorded.Needed<std::string>("strategy"), recorded);
  settings.criterion = recorded.Needed<double>("criterion");
  settings.start_with = recorded.WholeNumber("start_with");
  settings.sequence = recorded.WholeNumbers("sequence").value_or(std::vector<std::int32_t>{});
  settings.print_iterations = recorded.Needed<bool>("print_iterations");
  settings.print_subset_statistics = recorded.Needed<bool>("print_subset_statistics");
  settings.keep = KeptFrom(recorded.Needed<std::vector<std::string>>("keep"), recorded);
  settings.seed = record.seed;
  if (auto fault = recorded.Fault(path)) {
    return tl::unexpected(std::move(*fault));
  }
  return settings;
}

}  // namespace kaldo

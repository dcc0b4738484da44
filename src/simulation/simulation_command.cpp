// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_command.h"

#include <algorithm>

#include <fmt/format.h>

#include "runs/all_typed.h"

namespace kaldo {

namespace {

/// Which settings of a parental set were given; `prefix` is that of their keys.
struct GivenParents {
  bool collected = false;
  bool sample = false;
  bool pseudo_collected = false;  ///< the sample or the number

  GivenParents(const TypedSettings& typed, const std::string& prefix)
      : collected(typed.contains(prefix + "collected")),
        sample(typed.contains(prefix + "pseudo_collected_sample")),
        pseudo_collected(sample || typed.contains(prefix + "pseudo_collected")) {}
};

bool AnyGiven(const TypedSettings& typed, std::string_view group) {
  const auto table = SimulationSettingTable();
  return std::any_of(table.begin(), table.end(), [&](const auto& setting) {
    return setting.group == group && typed.contains(setting.key);
  });
}

bool IsSexed(const TypedSettings& typed) { return typed.contains("sexed"); }

/// Told where choices that were typed cannot act together.
void FindUnfit(const TypedSettings& typed, std::vector<Problem>& found) {
  const auto refuse = [&found](std::string why) {
    found.push_back({.kind = ProblemKind::kChoicesDoNotFit, .found = std::move(why)});
  };
  if (IsSexed(typed) && typed.contains("allocate_with")) {
    refuse("--sexed allocates with the model of --error; leave --allocate-with out");
  }
}

/// Options of the other flow, or of both procedures, would silently do nothing.
std::vector<Problem> FindContradictions(const TypedSettings& typed) {
  const bool sexed = IsSexed(typed);
  std::vector<Problem> found;
  if (AnyGiven(typed, sexed ? kNonSexedParentsGroup : kSexedParentsGroup)) {
    found.push_back({.kind = ProblemKind::kOptionsOfOtherFlow,
                     .found = sexed ? "--sexed goes with the options of males and females"
                                    : "the options of males and females go with --sexed"});
  }
  const GivenParents first(typed, sexed ? "males_" : "");
  const GivenParents second(typed, "females_");
  if ((first.collected && first.pseudo_collected) ||
      (second.collected && second.pseudo_collected)) {
    found.push_back(
        {.kind = ProblemKind::kCollectedAndPseudoCollected,
         .found = "collected parents are read, pseudo-collected ones are drawn from a sample"});
  } else if (sexed && first.collected != second.collected && (first.sample || second.sample)) {
    found.push_back(
        {.kind = ProblemKind::kCollectedAndPseudoCollected,
         .found = "males and females come from files of parents, or both from samples"});
  }
  FindUnfit(typed, found);
  return found;
}

/// What was given tells the flow and the procedure, be it contradictory.
SimulationSettings KindOfSimulation(const TypedSettings& typed) {
  SimulationSettings settings;
  const bool sexed = IsSexed(typed);
  const GivenParents first(typed, sexed ? "males_" : "");
  const GivenParents second(typed, "females_");
  const bool any_collected = first.collected || second.collected;
  const bool any_pseudo_collected = first.pseudo_collected || second.pseudo_collected;
  settings.flow = sexed ? Flow::kSexed : Flow::kNonSexed;
  settings.procedure =
      any_pseudo_collected && !any_collected ? Procedure::kPreParental : Procedure::kParental;
  return settings;
}

}  // namespace

tl::expected<SimulationSettings, Problem> SimulationFrom(const TypedSettings& typed) {
  if (const auto contradictions = FindContradictions(typed); !contradictions.empty()) {
    return tl::unexpected(contradictions.front());
  }
  SimulationSettings settings = KindOfSimulation(typed);
  if (auto problem = ReadTyped(SimulationSettingTable(), typed, settings)) {
    return tl::unexpected(std::move(*problem));
  }
  return settings;
}

std::optional<Problem> MissingProject(const TypedSettings& typed) {
  const auto project = typed.find("project");
  if (project != typed.end() && !project->second.empty()) {
    return std::nullopt;
  }
  const auto missing = MissingOptions(SimulationSettingTable(), typed, KindOfSimulation(typed));
  return Problem{.kind = ProblemKind::kNoProject,
                 .found = MissingNumber("--project", missing).found};
}

SimulationSettings ReadableSimulation(const TypedSettings& typed, AlikeGroups<Problem>& faults) {
  faults.AddAll(FindContradictions(typed));
  SimulationSettings settings = KindOfSimulation(typed);
  ReadAllTyped(SimulationSettingTable(), typed, settings, faults);
  return settings;
}

std::optional<Warning> WarnOfOptionsWithoutEffect(const TypedSettings& typed,
                                                  const TypedSettings& all) {
  struct Bound {
    std::string_view key;
    std::string_view option;
    std::vector<std::string_view> strategies;
  };
  static const std::vector<Bound> bound_options = {
      {"criterion", "--criterion", {"minimal"}},
      {"start_with", "--start-with", {"all", "minimal", "cumulative"}},
      {"sequence", "--sequence", {"cumulative"}},
      {"subset_randoms", "--subset-randoms", {"all", "minimal", "cumulative"}},
  };
  const auto chosen = all.find("strategy");
  const std::string_view strategy =
      chosen == all.end() ? "choice" : std::string_view(chosen->second);
  std::vector<std::string> found;
  for (const auto& [key, option, strategies] : bound_options) {
    const bool serves =
        std::find(strategies.begin(), strategies.end(), strategy) != strategies.end();
    if (typed.contains(key) && !serves) {
      found.push_back(
          fmt::format("{} goes with --strategy {}", option, fmt::join(strategies, ", ")));
    }
  }
  if (found.empty()) {
    return std::nullopt;
  }
  return Warning{.kind = WarningKind::kOptionWithoutEffect,
                 .found = fmt::format("{}", fmt::join(found, "; "))};
}

std::string CommandOf(const SimulationSettings& settings) {
  SimulationSettings told = settings;
  told.threads = 0;
  told.keep = KeptFilesOf(settings);
  SimulationSettings defaults;
  defaults.flow = settings.flow;
  defaults.keep = KeptFilesOf(defaults);
  ShellCommand command("kaldo simulate");
  AddToCommand(SimulationSettingTable(), told, defaults, command);
  return command.Text();
}

}  // namespace kaldo

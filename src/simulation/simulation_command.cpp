// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_command.h"

#include <algorithm>

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

/// Options of the other flow, or of both procedures, would silently do nothing.
tl::expected<Procedure, Problem> ProcedureFrom(const TypedSettings& typed, bool sexed) {
  if (AnyGiven(typed, sexed ? kNonSexedParentsGroup : kSexedParentsGroup)) {
    return NotUnderstood(ProblemKind::kOptionsOfOtherFlow,
                         sexed ? "--sexed goes with the options of males and females"
                               : "the options of males and females go with --sexed");
  }
  const GivenParents first(typed, sexed ? "males_" : "");
  const GivenParents second(typed, "females_");
  for (const GivenParents& given : {first, second}) {
    if (given.collected && given.pseudo_collected) {
      return NotUnderstood(
          ProblemKind::kCollectedAndPseudoCollected,
          "collected parents are read, pseudo-collected ones are drawn from a sample");
    }
  }
  if (sexed && first.collected != second.collected && (first.sample || second.sample)) {
    return NotUnderstood(ProblemKind::kCollectedAndPseudoCollected,
                         "males and females come from files of parents, or both from samples");
  }
  const bool any_collected = first.collected || second.collected;
  const bool any_pseudo_collected = first.pseudo_collected || second.pseudo_collected;
  return any_pseudo_collected && !any_collected ? Procedure::kPreParental : Procedure::kParental;
}

}  // namespace

tl::expected<SimulationSettings, Problem> SimulationFrom(const TypedSettings& typed) {
  const bool sexed = typed.contains("sexed");
  const auto procedure = ProcedureFrom(typed, sexed);
  if (!procedure) {
    return tl::unexpected(procedure.error());
  }
  SimulationSettings settings;
  settings.flow = sexed ? Flow::kSexed : Flow::kNonSexed;
  settings.procedure = *procedure;
  if (auto problem = ReadTyped(SimulationSettingTable(), typed, settings)) {
    return tl::unexpected(std::move(*problem));
  }
  return settings;
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

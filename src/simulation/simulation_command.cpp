// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_command.h"

#include <fmt/format.h>

#include "allocation/allocation_command.h"

namespace kaldo {

namespace {

/// Adds the options of one parental set; `sex` is empty in the non-sexed flow. Files of the other
/// procedure play no role in the run and are left out.
void AddSet(ShellCommand& command, Procedure procedure, const ParentalSet& set,
            std::string_view sex) {
  const bool sexed = !sex.empty();
  const std::string infix = sexed ? fmt::format("-{}", sex) : "";
  const std::string plural = sexed ? infix + "s" : "";
  if (procedure == Procedure::kParental) {
    command.AddIfAny(fmt::format("--collected{}", sexed ? plural : "-parents"), set.collected_file);
  } else {
    command.AddIfAny(fmt::format("--pseudo-collected{}-sample", infix),
                     set.pseudo_collected_sample);
    command.Add("--pseudo-collected" + plural, fmt::format("{}", set.pseudo_collected));
  }
  command.AddIfAny(fmt::format("--uncollected{}-sample", infix), set.uncollected_sample);
  command.Add("--uncollected" + plural, fmt::format("{}", set.uncollected));
  if (sexed) {
    command.Add("--estimated-collected" + plural, fmt::format("{}", set.estimated_collected));
    command.Add("--estimated-uncollected" + plural, fmt::format("{}", set.estimated_uncollected));
  }
}

void AddParents(ShellCommand& command, const SimulationSettings& settings) {
  if (settings.flow == Flow::kNonSexed) {
    AddSet(command, settings.procedure, settings.sets[0], "");
    return;
  }
  command.Add("--sexed");
  AddSet(command, settings.procedure, settings.sets[0], "male");
  AddSet(command, settings.procedure, settings.sets[1], "female");
}

std::string_view NameOf(LociStrategy strategy) {
  switch (strategy) {
    case LociStrategy::kAll:
      return "all";
    case LociStrategy::kMinimal:
      return "minimal";
    case LociStrategy::kCumulative:
      return "cumulative";
    case LociStrategy::kChoice:
      break;
  }
  return "choice";
}

/// The criterion and the smallest number of loci are tested whatever the strategy, so they are told
/// whatever the strategy.
void AddStrategy(ShellCommand& command, const SimulationSettings& settings) {
  const SimulationSettings defaults;
  if (settings.strategy != defaults.strategy) {
    command.Add("--strategy", NameOf(settings.strategy));
  }
  if (settings.criterion != defaults.criterion) {
    command.Add("--criterion", fmt::format("{}", settings.criterion));
  }
  if (settings.start_with != defaults.start_with) {
    command.Add("--start-with", fmt::format("{}", settings.start_with));
  }
  command.AddIfAny("--sequence", SequenceOption(settings.sequence));
}

std::string KeepOption(const KeptFiles& kept) {
  std::vector<std::string_view> kinds;
  if (kept.parents) {
    kinds.emplace_back("parents");
  }
  if (kept.offspring) {
    kinds.emplace_back("offspring");
  }
  if (kept.matrices) {
    kinds.emplace_back("matrices");
  }
  return kinds.empty() ? "none" : fmt::format("{}", fmt::join(kinds, ","));
}

void AddOutput(ShellCommand& command, const SimulationSettings& settings) {
  if (settings.print_iterations) {
    command.Add("--print-iterations");
  }
  if (settings.print_subset_statistics) {
    command.Add("--print-subset-statistics");
  }
  SimulationSettings nothing_said;
  nothing_said.flow = settings.flow;
  if (KeptFilesOf(settings) != KeptFilesOf(nothing_said)) {
    command.Add("--keep", KeepOption(KeptFilesOf(settings)));
  }
}

}  // namespace

std::string CommandOf(const SimulationSettings& settings) {
  ShellCommand command("kaldo simulate");
  command.AddIfAny("--project", settings.project);
  command.AddIfAny("--loci", settings.loci_file);
  AddParents(command, settings);
  command.Add("--iterations", fmt::format("{}", settings.iterations));
  command.Add("--offspring-per-iteration", fmt::format("{}", settings.offspring_per_iteration));
  AddMethodOptions(command, settings.tolerance, settings.error_model, settings.loci_in_use);
  AddStrategy(command, settings);
  AddOutput(command, settings);
  if (settings.seed) {
    command.Add("--seed", fmt::format("{}", *settings.seed));
  }
  return command.Text();
}

}  // namespace kaldo

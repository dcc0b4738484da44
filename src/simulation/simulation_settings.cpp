// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_settings.h"

#include <algorithm>

#include <fmt/format.h>

#include "confidence/confidence_level_setting.h"
#include "method/method_settings.h"
#include "simulation/likeness_settings.h"
#include "simulation/random_settings.h"

namespace kaldo {

namespace {

using Declared = Setting<SimulationSettings>;
using Positions = std::vector<std::int32_t>;

/// A sequence of which an empty one stands for the file order.
ValueKind<Positions> PositionsKind() {
  const auto sequence = SequenceKind();
  const auto said = [](const Positions& positions) {
    return positions.empty() ? std::nullopt : std::optional(positions);
  };
  return {.parse = ParseSequence,
          .text = [=](const Positions& positions) { return sequence.text(said(positions)); },
          .record = [=](const Positions& positions, const std::string& key,
                        RunRecord& record) { sequence.record(said(positions), key, record); },
          .recorded =
              [=](const std::string& key, RecordedSettings& recorded) {
                return sequence.recorded(key, recorded).value_or(Positions{});
              }};
}

/// The flag that makes a simulation a sexed one; a record tells it in its flow.
ValueKind<Flow> FlowKind() {
  return {.parse = [](std::string_view /*option*/, std::string_view /*text*/)
              -> tl::expected<Flow, Problem> { return Flow::kSexed; },
          .text = [](const Flow& flow) -> std::optional<std::string> {
            return flow == Flow::kSexed ? std::optional(std::string()) : std::nullopt;
          },
          .record = [](const Flow& /*flow*/, const std::string& /*key*/, RunRecord& /*record*/) {},
          .recorded = [](const std::string& /*key*/,
                         RecordedSettings& /*recorded*/) { return Flow::kNonSexed; }};
}

std::vector<std::string> NamesOfKept(const KeptFiles& kept) {
  std::vector<std::string> names;
  for (const auto& each : kKeptFiles) {
    if (kept.*each.choice) {
      names.emplace_back(each.name);
    }
  }
  return names;
}

tl::expected<std::optional<KeptFiles>, Problem> ParseKept(std::string_view option,
                                                          std::string_view text) {
  KeptFiles kept;
  if (text == "none") {
    return kept;
  }
  if (const auto parts = CutAtCommas(text);
      parts.size() > 1 && std::count(parts.begin(), parts.end(), "none") > 0) {
    return NotUnderstood(ProblemKind::kKeptAndNone, fmt::format("{}: {}", option, Quoted(text)));
  }
  std::vector<std::string_view> names = NamesIn(kKeptFiles);
  names.insert(names.end(), {"all", "none"});
  for (const std::string& name : CutAtCommas(text)) {
    bool known = false;
    for (const auto& each : kKeptFiles) {
      const bool meant = name == each.name || name == "all";
      kept.*each.choice = kept.*each.choice || meant;
      known = known || meant;
    }
    if (!known) {
      return NoneOf(names, option, name, ProblemKind::kUnknownKeptFile);
    }
  }
  return kept;
}

std::optional<KeptFiles> RecordedKept(const std::string& key, RecordedSettings& recorded) {
  KeptFiles kept;
  for (const auto& name : recorded.Needed<std::vector<std::string>>(key)) {
    const auto place = PlaceOf(name, NamesIn(kKeptFiles));
    if (place) {
      kept.*kKeptFiles.at(*place).choice = true;
    } else {
      recorded.Note(key, "names an unknown kind of file");
    }
  }
  return kept;
}

ValueKind<std::optional<KeptFiles>> KeptFilesKind() {
  using Kept = std::optional<KeptFiles>;
  return {.parse = ParseKept,
          .text = [](const Kept& kept) -> std::optional<std::string> {
            if (!kept) {
              return std::nullopt;
            }
            const auto names = NamesOfKept(*kept);
            return names.empty() ? "none" : fmt::format("{}", fmt::join(names, ","));
          },
          .record =
              [](const Kept& kept, const std::string& key, RunRecord& record) {
                record.settings.emplace_back(key, NamesOfKept(kept.value_or(KeptFiles{})));
              },
          .recorded = RecordedKept,
          .choices = NamesIn(kKeptFiles)};
}

/// A member of one parental set.
template <typename Value>
SettingValue<SimulationSettings> InSet(std::size_t set, Value ParentalSet::*member,
                                       const ValueKind<Value>& kind) {
  return ValueAt<SimulationSettings>(
      [ set, member ](auto& settings) -> auto& { return settings.sets.at(set).*member; }, kind);
}

/// Settings of the parents apply to one flow, and perhaps to one procedure only.
auto In(Flow flow, std::optional<Procedure> procedure = {}) {
  return [flow, procedure](const SimulationSettings& settings) {
    return settings.flow == flow && settings.procedure == procedure.value_or(settings.procedure);
  };
}

std::vector<Declared> NonSexedParents() {
  const std::string group(kNonSexedParentsGroup);
  constexpr Flow kFlow = Flow::kNonSexed;
  return {
      {.key = "collected",
       .option = "--collected-parents",
       .metavar = "FILE",
       .group = group,
       .help = "After the field work: genotypes of the collected parents",
       .value = InSet(0, &ParentalSet::collected_file, TextKind()),
       .applies = In(kFlow, Procedure::kParental)},
      {.key = "pseudo_collected_sample",
       .option = "--pseudo-collected-sample",
       .metavar = "FILE",
       .group = group,
       .help = "Before it: sample to draw pseudo-collected parents from",
       .value = InSet(0, &ParentalSet::pseudo_collected_sample, TextKind()),
       .applies = In(kFlow, Procedure::kPreParental)},
      {.key = "pseudo_collected",
       .option = "--pseudo-collected",
       .metavar = "N",
       .group = group,
       .help = "Number of pseudo-collected parents",
       .value = InSet(0, &ParentalSet::pseudo_collected, WholeKind()),
       .applies = In(kFlow, Procedure::kPreParental),
       .needed = true},
      {.key = "uncollected_sample",
       .option = "--uncollected-sample",
       .metavar = "FILE",
       .group = group,
       .help = "Sample to draw uncollected parents from",
       .value = InSet(0, &ParentalSet::uncollected_sample, TextKind()),
       .applies = In(kFlow),
       .not_needed_at_0 = "uncollected"},
      {.key = "uncollected",
       .option = "--uncollected",
       .metavar = "U",
       .group = group,
       .help = "Estimated number of uncollected parents",
       .value = InSet(0, &ParentalSet::uncollected, RealKind()),
       .applies = In(kFlow),
       .needed = true},
  };
}

/// The settings of the males or of the females; `sex` is "male" or "female".
std::vector<Declared> SexedParents(std::size_t set, const std::string& sex) {
  const std::string group(kSexedParentsGroup);
  constexpr Flow kFlow = Flow::kSexed;
  return {
      {.key = sex + "s_collected",
       .option = "--collected-" + sex + "s",
       .metavar = "FILE",
       .group = group,
       .help = "After the field work: genotypes of the collected " + sex + "s",
       .value = InSet(set, &ParentalSet::collected_file, TextKind()),
       .applies = In(kFlow, Procedure::kParental)},
      {.key = sex + "s_pseudo_collected_sample",
       .option = "--pseudo-collected-" + sex + "-sample",
       .metavar = "FILE",
       .group = group,
       .help = "Before it: sample to draw pseudo-collected " + sex + "s from",
       .value = InSet(set, &ParentalSet::pseudo_collected_sample, TextKind()),
       .applies = In(kFlow, Procedure::kPreParental)},
      {.key = sex + "s_pseudo_collected",
       .option = "--pseudo-collected-" + sex + "s",
       .metavar = "N",
       .group = group,
       .help = "Number of pseudo-collected " + sex + "s",
       .value = InSet(set, &ParentalSet::pseudo_collected, WholeKind()),
       .applies = In(kFlow, Procedure::kPreParental),
       .needed = true},
      {.key = sex + "s_uncollected_sample",
       .option = "--uncollected-" + sex + "-sample",
       .metavar = "FILE",
       .group = group,
       .help = "Sample to draw uncollected " + sex + "s from",
       .value = InSet(set, &ParentalSet::uncollected_sample, TextKind()),
       .applies = In(kFlow),
       .not_needed_at_0 = sex + "s_uncollected"},
      {.key = sex + "s_uncollected",
       .option = "--uncollected-" + sex + "s",
       .metavar = "N",
       .group = group,
       .help = "Number of uncollected " + sex + "s drawn at each iteration",
       .value = InSet(set, &ParentalSet::uncollected, WholeRealKind()),
       .applies = In(kFlow),
       .needed = true},
      {.key = sex + "s_estimated_collected",
       .option = "--estimated-collected-" + sex + "s",
       .metavar = "X",
       .group = group,
       .help = "Estimated number of collected " + sex + "s in the population",
       .value = InSet(set, &ParentalSet::estimated_collected, RealKind()),
       .applies = In(kFlow),
       .needed = true},
      {.key = sex + "s_estimated_uncollected",
       .option = "--estimated-uncollected-" + sex + "s",
       .metavar = "X",
       .group = group,
       .help = "Estimated number of uncollected " + sex + "s in the population",
       .value = InSet(set, &ParentalSet::estimated_uncollected, RealKind()),
       .applies = In(kFlow),
       .needed = true},
  };
}

std::vector<Declared> WhatIsRun() {
  return {
      ProjectSetting<SimulationSettings>(),
      LociSetting<SimulationSettings>(),
      {.key = "sexed",
       .option = "--sexed",
       .group = std::string(kSexedParentsGroup),
       .help = "Males and females are known",
       .value = Member(&SimulationSettings::flow, FlowKind()),
       .always_told = true,
       .in_head_of_record = true},
      {.key = "procedure",  // no option: it follows from those of the parents
       .value = Member(&SimulationSettings::procedure,
                       ChoiceKind(kProcedures, ProblemKind::kCollectedAndPseudoCollected))},
  };
}

std::vector<Declared> Method() {
  return {
      {.key = "iterations",
       .option = "--iterations",
       .metavar = "N",
       .group = "Method",
       .help = "Number of iterations; non-sexed below 1000",
       .value = Member(&SimulationSettings::iterations, WholeKind()),
       .needed = true,
       .first_shown = "100"},
      {.key = "offspring_per_iteration",
       .option = "--offspring-per-iteration",
       .metavar = "N",
       .group = "Method",
       .help = "Pseudo-offspring made at each iteration",
       .value = Member(&SimulationSettings::offspring_per_iteration, WholeKind()),
       .needed = true,
       .first_shown = "100"},
      ToleranceSetting<SimulationSettings>(
          "Maximal offset tolerance, in whole unit distances (repeats)"),
      ErrorModelSetting<SimulationSettings>(""),
      LociInUseSetting<SimulationSettings>(),
      {.key = "confidence",
       .option = "--confidence",
       .group = "Method",
       .help = "Compare how sure allocations are said to be with the truth",
       .value = Member(&SimulationSettings::scores_confidence, FlagKind())},
      ConfidenceLevelSetting<SimulationSettings>(&SimulationSettings::confidence_level),
      UndefinedParentsSetting<SimulationSettings>(),
  };
}

std::string StrategiesHelp() {
  std::vector<std::string> strategies;
  strategies.reserve(kStrategies.size());
  for (const auto& each : kStrategies) {
    strategies.push_back(fmt::format("{}: {}", each.name, each.help));
  }
  return fmt::format("{}", fmt::join(strategies, " | "));
}

/// The criterion and the smallest number of loci are tested whatever the strategy, so they apply
/// whatever the strategy.
std::vector<Declared> SubsetsOfLoci() {
  const std::string group = "Subsets of loci";
  return {
      {.key = "strategy",
       .option = "--strategy",
       .metavar = "NAME",
       .group = group,
       .help = StrategiesHelp(),
       .value = Member(&SimulationSettings::strategy,
                       ChoiceKind(kStrategies, ProblemKind::kNoStrategy))},
      {.key = "criterion",
       .option = "--criterion",
       .metavar = "X",
       .group = group,
       .help = "Probability that any allocation is correct, 0 to 1",
       .value = Member(&SimulationSettings::criterion, RealKind())},
      {.key = "start_with",
       .option = "--start-with",
       .metavar = "K",
       .group = group,
       .help = "Loci of the smallest subset",
       .value = Member(&SimulationSettings::start_with, WholeKind())},
      {.key = "sequence",
       .option = "--sequence",
       .metavar = "I1,I2,...",
       .group = group,
       .help =
           "Position of each locus of the names file in the sequence, or names in order; default: "
           "file order",
       .value = Member(&SimulationSettings::sequence, PositionsKind()),
       .may_stand_alone = true},
  };
}

std::vector<Declared> Output() {
  const std::string group = "Output";
  return {
      {.key = "print_iterations",
       .option = "--print-iterations",
       .group = group,
       .help = "Write the detailed results of every iteration",
       .value = Member(&SimulationSettings::print_iterations, FlagKind())},
      {.key = "print_subset_statistics",
       .option = "--print-subset-statistics",
       .group = group,
       .help = "Write the statistics of every subset into the summary",
       .value = Member(&SimulationSettings::print_subset_statistics, FlagKind()),
       .first_shown = ""},
      {.key = "keep",
       .option = "--keep",
       .metavar = "KINDS",
       .group = group,
       .help = fmt::format("Generated files to keep: {} | all | none; default: parents,offspring, "
                           "and none when sexed",
                           fmt::join(NamesIn(kKeptFiles), ",")),
       .value = Member(&SimulationSettings::keep, KeptFilesKind())},
      ExportFormsSetting<SimulationSettings>(&SimulationSettings::also, kSimulationExportForms),
      ThreadsSetting<SimulationSettings>(),
      {.key = "seed",
       .option = "--seed",
       .metavar = "S",
       .group = "Method",
       .help = "Seed of the random numbers, 0 to 4294967295; default: the clock, in seconds: runs "
               "begun in the same second share it. Always told",
       .value = Member(&SimulationSettings::seed, SeedKind()),
       .in_head_of_record = true},
  };
}

std::vector<Declared> DeclareSettings() {
  std::vector<Declared> table = WhatIsRun();
  for (const auto& part :
       {NonSexedParents(), SexedParents(0, "male"), SexedParents(1, "female"), Method(),
        SubsetsOfLoci(), Output(), LikenessSettings(), RandomSettings()}) {
    table.insert(table.end(), part.begin(), part.end());
  }
  return table;
}

}  // namespace

SettingTable<SimulationSettings> SimulationSettingTable() {
  static const std::vector<Declared> table = DeclareSettings();
  return table;
}

SimulationSettings FirstShownSimulation(Flow flow) {
  SimulationSettings settings;
  settings.flow = flow;
  FillInFirstShown(SimulationSettingTable(), settings);
  return settings;
}

KeptFiles KeptFilesOf(const SimulationSettings& settings) {
  const bool by_default = settings.flow == Flow::kNonSexed;
  return settings.keep.value_or(KeptFiles{by_default, by_default, false});
}

}  // namespace kaldo

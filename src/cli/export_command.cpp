// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_command.h"

#include <ostream>

#include <fmt/format.h>

#include "allocation/allocation_record.h"
#include "cli/opened_record.h"
#include "cli/tell.h"
#include "cli/terminal_progress.h"
#include "interchange/export/allocation_exporter.h"
#include "interchange/export/run_exports.h"
#include "interchange/export/simulation_exporter.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

/// What was typed, by the keys of the settings.
TypedSettings TypedIn(const ExportChoices& choices) {
  TypedSettings typed = {{"also", choices.forms}};
  const auto add = [&typed](const std::string& key, const std::optional<std::string>& text) {
    if (text) {
      typed[key] = *text;
    }
  };
  add("sexes", choices.sexes);
  add("names", choices.names);
  add("min_probability", choices.min_probability);
  add("threads", choices.threads);
  return typed;
}

ExportForms& FormsOf(AllocationSettings& settings) { return settings.exports.forms; }
ExportForms& FormsOf(SimulationSettings& settings) { return settings.also; }

/// Puts what was typed into the settings of the recorded run. Beside its record the forms that it
/// has are made again: the record tells one choice for all of them.
template <typename Settings>
std::optional<Problem> Adapt(SettingTable<Settings> table, TypedSettings typed, bool beside_record,
                             Settings& settings) {
  const ExportForms earlier = FormsOf(settings);
  for (const Setting<Settings>& setting : table) {
    const auto text = typed.find(setting.key);
    if (text == typed.end()) {
      continue;
    }
    const std::string option = setting.key == "also" ? "--as" : setting.option;
    if (auto problem = setting.value.parse(settings, option, text->second)) {
      return problem;
    }
    typed.erase(text);
  }
  if (!FormsOf(settings).Any()) {
    return Problem{.kind = ProblemKind::kUnknownExport,
                   .found = "--as wants one or some of tsv, xlsx, html and pedigree"};
  }
  if (!typed.empty()) {
    return Problem{.kind = ProblemKind::kCannotExport,
                   .found = fmt::format("a simulation has no use for {}", typed.begin()->first)};
  }
  for (const NamedExportForm& form : kAllExportForms) {
    FormsOf(settings).*form.choice =
        FormsOf(settings).*form.choice || (beside_record && earlier.*form.choice);
  }
  return std::nullopt;
}

tl::expected<MadeExports, Problem> Repeat(AllocationSettings settings, RunObserver& observer,
                                          Workforce& workforce) {
  auto input = LoadAllocationInput(settings, workforce.Files());
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  AllocationExporter exporter;
  if (auto problem = exporter.Prepare(settings, *input, workforce.Files())) {
    return tl::unexpected(std::move(*problem));
  }
  const AllocationResult result = Allocate(settings, *input, observer, workforce);
  RunRecord record = RecordOf(settings, *input, result);
  Exported exported = exporter.Make(settings, *input, result, record);
  return MadeExports{std::move(record), std::move(exported)};
}

tl::expected<MadeExports, Problem> Repeat(SimulationSettings settings, RunObserver& observer,
                                          Workforce& workforce) {
  auto input = LoadSimulationInput(settings, workforce.Files());
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  SimulationExporter exporter;
  if (auto problem = exporter.Prepare(settings, *input, workforce.Files())) {
    return tl::unexpected(std::move(*problem));
  }
  const SimulationResult result = Simulate(settings, *input, observer, workforce);
  RunRecord record = RecordOf(settings, *input, result);
  Exported exported = exporter.Make(settings, *input, result, record);
  return MadeExports{std::move(record), std::move(exported)};
}

tl::expected<MadeExports, Problem> Repeat(const ExportChoices& choices, RunSettings settings,
                                          const CommandLineStreams& streams, Workforce& workforce) {
  TerminalProgress progress(streams.err, streams.err_is_terminal);
  const TypedSettings typed = TypedIn(choices);
  if (auto* const allocation = std::get_if<AllocationSettings>(&settings)) {
    if (auto problem = Adapt(AllocationSettingTable(), typed, !choices.folder, *allocation)) {
      return tl::unexpected(std::move(*problem));
    }
    return Repeat(std::move(*allocation), progress, workforce);
  }
  auto& simulation = std::get<SimulationSettings>(settings);
  if (auto problem = Adapt(SimulationSettingTable(), typed, !choices.folder, simulation)) {
    return tl::unexpected(std::move(*problem));
  }
  return Repeat(std::move(simulation), progress, workforce);
}

}  // namespace

ExitCode RunExport(const ExportChoices& choices, const CommandLineStreams& streams,
                   Workforce& workforce) {
  const auto opened = OpenRecord(choices.record, streams);
  if (!opened) {
    return Tell(opened.error(), streams);
  }
  if (!opened->now.changes.changed.empty()) {
    return Tell(ChangedInputsProblem(*opened, " Run again with --also for what they are now."),
                streams);
  }
  const auto run = Repeat(choices, opened->settings, streams, workforce);
  if (!run) {
    return Tell(run.error(), streams);
  }
  for (const Problem& refused : run->exported.refused) {
    Tell(refused, streams);
  }
  if (!run->exported.refused.empty()) {
    return ExitCode::kBadInput;
  }
  for (const std::string& warning : run->exported.warnings) {
    streams.err << "Warning: " << Escaped(warning) << '\n';
  }
  const std::string folder = choices.folder.value_or(FolderOfRecord(opened->path));
  if (choices.folder) {
    WriteExports(ProjectFolder(folder), *run);
  } else {
    RunObserver unheard;
    AddToRecordedRun(ProjectFolder(folder), opened->then, *run, unheard);
  }
  streams.out << EscapedLines(fmt::format("Files in \"{}\":\n", folder));
  for (const ExportedFile& file : run->exported.files) {
    streams.out << fmt::format("  {}\n", file.name.substr(1));
  }
  return ExitCode::kDone;
}

}  // namespace kaldo

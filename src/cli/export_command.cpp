// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_command.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <ostream>

#include <fmt/format.h>

#include "allocation/allocation_record.h"
#include "base/disk_file.h"
#include "base/this_process.h"
#include "cli/opened_record.h"
#include "cli/tell.h"
#include "cli/terminal_progress.h"
#include "interchange/export/allocation_exporter.h"
#include "interchange/export/simulation_exporter.h"
#include "runs/input_clash.h"
#include "runs/report_set.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

/// A repeated run and what was made of it.
struct RepeatedRun {
  RunRecord record;
  Exported exported;
};

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

tl::expected<RepeatedRun, Problem> Repeat(AllocationSettings settings, RunObserver& observer,
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
  return RepeatedRun{std::move(record), std::move(exported)};
}

tl::expected<RepeatedRun, Problem> Repeat(SimulationSettings settings, RunObserver& observer,
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
  return RepeatedRun{std::move(record), std::move(exported)};
}

tl::expected<RepeatedRun, Problem> Repeat(const ExportChoices& choices, RunSettings settings,
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

constexpr std::array<std::string_view, 4> kExportKeys = {"also", "sexes", "names",
                                                         "min_probability"};

bool IsExportKey(std::string_view key) {
  return std::find(kExportKeys.begin(), kExportKeys.end(), key) != kExportKeys.end();
}

bool IsExportRole(std::string_view role) {
  return role == kOriginalNamesRole || role == kSexesRole;
}

/// The path as it is found from the folder of the recorded run.
std::string PathFrom(const std::string& folder, const std::string& path) {
  std::error_code ignored;
  return folder == CurrentFolder() ? path : std::filesystem::absolute(path, ignored).string();
}

/// The record as the run would have left it with these exports. Files that the record names already
/// keep their names.
RunRecord WithExports(RunRecord record, const RunRecord& repeated) {
  std::erase_if(record.settings, [](const auto& each) { return IsExportKey(each.first); });
  std::erase_if(record.inputs, [](const auto& input) { return IsExportRole(input.role); });
  for (RecordedInput input : repeated.inputs) {
    if (IsExportRole(input.role)) {
      input.path = PathFrom(record.folder, input.path);
      record.inputs.push_back(std::move(input));
    }
  }
  for (const auto& [key, value] : repeated.settings) {
    if (!IsExportKey(key)) {
      continue;
    }
    const auto* const path = std::get_if<std::string>(&value);
    record.settings.emplace_back(
        key, path != nullptr ? RecordValue(PathFrom(record.folder, *path)) : value);
  }
  return record;
}

/// Makes the files a part of the recorded run, as one step.
void AddToRun(const OpenedRecord& opened, const RepeatedRun& run, RunObserver& observer) {
  ReportSet reports({ProjectFolder(FolderOfRecord(opened.path)), opened.then.flow,
                     run.record.inputs, false, KeptWork::kNone, true},
                    observer);
  for (const ExportedFile& file : run.exported.files) {
    reports.Add(file.name).Append(file.text);
  }
  RunRecord record = WithExports(opened.then, run.record);
  for (RecordedOutput& output : reports.Outputs()) {
    const auto earlier = std::find_if(record.outputs.begin(), record.outputs.end(),
                                      [&](const auto& each) { return each.file == output.file; });
    if (earlier == record.outputs.end()) {
      record.outputs.push_back(std::move(output));
    } else {
      *earlier = std::move(output);
    }
  }
  reports.Add(kRunRecordFile).Append(FormatRunRecord(record));
  reports.Commit();
}

[[noreturn]] void Fail(const std::string& path, std::error_code error) {
  throw RunFailure(fmt::format("Cannot write \"{}\": {}", path, error.message()));
}

/// Puts the files into a folder that is no part of the run.
void WriteInto(const ProjectFolder& folder, const RepeatedRun& run) {
  for (const ExportedFile& file : run.exported.files) {
    if (auto problem = ClashWithInput(folder.Path(file.name), run.record.inputs)) {
      throw RunRefused(std::move(*problem));
    }
  }
  (void)folder.Create();
  for (const ExportedFile& file : run.exported.files) {
    const std::string path = folder.Path(file.name);
    const std::string begun = path + ".part";
    std::error_code error = WriteNewFile(begun, file.text);
    if (!error) {
      std::filesystem::rename(begun, path, error);
    }
    if (error) {
      std::error_code ignored;
      std::filesystem::remove(begun, ignored);
      Fail(path, error);
    }
  }
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
    WriteInto(ProjectFolder(folder), *run);
  } else {
    RunObserver unheard;
    AddToRun(*opened, *run, unheard);
  }
  streams.out << EscapedLines(fmt::format("Files in \"{}\":\n", folder));
  for (const ExportedFile& file : run->exported.files) {
    streams.out << fmt::format("  {}\n", file.name.substr(1));
  }
  return ExitCode::kDone;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/recorded_run.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <system_error>

#include <fmt/format.h>

#include "base/version.h"
#include "cli/result_comparison.h"
#include "cli/tell.h"
#include "runs/earlier_run.h"
#include "runs/value_kinds.h"
#include "simulation/recorded_files.h"

namespace kaldo {

namespace {

/// A folder that goes away with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder() : path_((std::filesystem::temp_directory_path() / "kaldo-XXXXXX").string()) {
    if (::mkdtemp(path_.data()) == nullptr) {
      throw RunFailure(fmt::format("Cannot make the folder \"{}\": {}", path_,
                                   std::generic_category().message(errno)));
    }
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

std::string FolderOf(const std::string& record) {
  const auto folder = std::filesystem::path(record).parent_path().string();
  return folder.empty() ? "." : folder;
}

/// The record that is meant where it or its folder is named. What a crashed run left half done in
/// the folder is settled first.
std::string RecordToRead(const std::string& path, const CommandLineStreams& streams) {
  std::string record = RecordNamedBy(path);
  SettleProject(ProjectFolder(FolderOf(record)), streams);
  return record;
}

void TellEach(const std::vector<std::string>& phrases, std::ostream& stream) {
  for (const std::string& phrase : phrases) {
    stream << "  " << Escaped(phrase) << '\n';
  }
}

/// What a user should know of the files before they are used again.
void TellPlaces(const RunRecord& then, const LocatedRecord& now,
                const CommandLineStreams& streams) {
  if (then.version != Version()) {
    streams.err << Escaped(
                       fmt::format("Warning: the record was made by KALDO {}, this is KALDO {}.",
                                   then.version, Version()))
                << '\n';
  }
  for (std::size_t i = 0; i < then.inputs.size(); ++i) {
    const RecordedInput& input = now.record.inputs[i];
    if (input.path != then.inputs[i].path) {
      streams.err << Escaped(fmt::format("Note: {} is read from \"{}\".", input.role, input.path))
                  << '\n';
    }
  }
  if (!now.changes.missing.empty()) {
    streams.err << fmt::format("Note: the recorded run was started in the folder {}\n",
                               Quoted(then.folder));
  }
}

/// What the repeated run calls its files, and what the recorded run called them.
PathsThen PathsOf(const RunRecord& then, const RunRecord& now, const std::string& project) {
  PathsThen paths;
  for (std::size_t i = 0; i < then.inputs.size(); ++i) {
    paths[now.inputs[i].path] = then.inputs[i].path;
  }
  const ProjectFolder folder_then(then.Setting<std::string>("project").value_or(""));
  for (const RecordedOutput& output : then.outputs) {
    paths[ProjectFolder(project).Path('/' + output.file)] = folder_then.Path('/' + output.file);
  }
  return paths;
}

/// Repeats the run where nobody sees it and tells how its results compare with those recorded.
ExitCode RepeatAndCompare(const RunRecord& record, const RunRecord& now,
                          const RerunChoices& choices, RunSettings settings,
                          const CommandLineStreams& streams, const Runner& run) {
  if (record.outputs.empty()) {
    return Tell({.kind = ProblemKind::kUnusableRunRecord,
                 .file = choices.record,
                 .found = "it lists no results to compare with; --project writes new ones"},
                streams);
  }
  const TemporaryFolder folder;
  const std::string project = folder.Path() + "/repeated";
  std::visit(
      [&](auto& each) {
        each.project = project;
        each.kept_work = KeptWork::kNone;
      },
      settings);
  std::ostringstream unheard;
  const ExitCode code = run(settings, {unheard, streams.err, streams.err_is_terminal});
  if (code != ExitCode::kDone) {
    return code;
  }
  const auto comparison = CompareResults(record, project, PathsOf(record, now, project));
  if (comparison.IsIntact(record)) {
    streams.out << fmt::format("identical, {0} of {0} files\n", comparison.same);
    return ExitCode::kDone;
  }
  streams.out << fmt::format("different, {} of {} files are identical\n", comparison.same,
                             record.outputs.size());
  TellEach(comparison.differences, streams.out);
  return ExitCode::kDiffers;
}

/// The settings with what was typed. Nothing outside the folder of the record is written on the
/// word of the record alone.
std::optional<Problem> Adapt(const RerunChoices& choices, RunSettings& settings) {
  unsigned threads = 0;
  if (choices.threads) {
    const auto number = ParseThreads("--threads", *choices.threads);
    if (!number) {
      return number.error();
    }
    threads = *number;
  }
  std::visit(
      [&](auto& each) {
        each.threads = choices.threads ? threads : each.threads;
        each.project = choices.project.value_or(FolderOf(choices.record));
      },
      settings);
  if (auto* const simulation = std::get_if<SimulationSettings>(&settings)) {
    simulation->saves_loci = choices.project.has_value();
  }
  return std::nullopt;
}

}  // namespace

ExitCode RunRerun(RerunChoices choices, const CommandLineStreams& streams, const Runner& run) {
  choices.record = RecordToRead(choices.record, streams);
  const auto record = ReadRunRecord(choices.record);
  if (!record) {
    return Tell(record.error(), streams);
  }
  // First of all: a flow or a setting that is not understood says nothing about files.
  if (const auto recorded = RunSettingsOf(*record, choices.record); !recorded) {
    return Tell(recorded.error(), streams);
  }
  const auto located = LocateRecordedFiles(*record, choices.record);
  if (!located) {
    return Tell(located.error(), streams);
  }
  TellPlaces(*record, *located, streams);
  const auto& changed = located->changes.changed;
  if (!changed.empty() && !choices.with_changed_inputs) {
    return Tell({.kind = ProblemKind::kInputsChanged,
                 .file = choices.record,
                 .found = fmt::format("{} --with-changed-inputs uses the files as they are",
                                      fmt::join(changed, " "))},
                streams);
  }
  for (const std::string& sentence : changed) {
    streams.err << "Warning: " << Escaped(sentence) << '\n';
  }
  auto settings = RunSettingsOf(located->record, choices.record);
  if (const auto problem = Adapt(choices, *settings)) {
    return Tell(*problem, streams);
  }
  return choices.project || choices.overwrites
             ? run(*settings, streams)
             : RepeatAndCompare(*record, located->record, choices, *settings, streams, run);
}

ExitCode RunVerify(const std::string& path, const CommandLineStreams& streams) {
  const std::string record_path = RecordToRead(path, streams);
  const auto record = ReadRunRecord(record_path);
  if (!record) {
    return Tell(record.error(), streams);
  }
  const auto located = LocateRecordedFiles(*record, record_path);
  if (!located) {
    return Tell(located.error(), streams);
  }
  const auto results = CompareResults(*record, FolderOf(record_path));
  const bool intact = results.IsIntact(*record);
  streams.out << fmt::format("Results: {}, {} of {} files\n", intact ? "intact" : "not intact",
                             results.same, record->outputs.size());
  TellEach(results.differences, streams.out);
  const auto& [missing, changed] = located->changes;
  const std::size_t inputs = record->inputs.size();
  const bool unchanged = missing.empty() && changed.empty();
  streams.out << fmt::format("Inputs: {}, {} of {} files\n", unchanged ? "unchanged" : "changed",
                             inputs - missing.size() - changed.size(), inputs);
  TellEach(missing, streams.out);
  TellEach(changed, streams.out);
  return intact && unchanged ? ExitCode::kDone : ExitCode::kDiffers;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/recorded_run.h"

#include <ostream>
#include <sstream>

#include <fmt/format.h>

#include "base/temporary_folder.h"
#include "cli/opened_record.h"
#include "cli/result_comparison.h"
#include "cli/tell.h"
#include "runs/value_kinds.h"
#include "simulation/recorded_files.h"

namespace kaldo {

namespace {

void TellEach(const std::vector<std::string>& phrases, std::ostream& stream) {
  for (const std::string& phrase : phrases) {
    stream << "  " << Escaped(phrase) << '\n';
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
        each.project = choices.project.value_or(FolderOfRecord(choices.record));
      },
      settings);
  if (auto* const simulation = std::get_if<SimulationSettings>(&settings)) {
    simulation->saves_loci = choices.project.has_value();
  }
  return std::nullopt;
}

}  // namespace

ExitCode RunRerun(RerunChoices choices, const CommandLineStreams& streams, const Runner& run) {
  auto opened = OpenRecord(choices.record, streams);
  if (!opened) {
    return Tell(opened.error(), streams);
  }
  choices.record = opened->path;
  const auto& changed = opened->now.changes.changed;
  if (!changed.empty() && !choices.with_changed_inputs) {
    return Tell(ChangedInputsProblem(*opened, " --with-changed-inputs uses the files as they are"),
                streams);
  }
  for (const std::string& sentence : changed) {
    streams.err << "Warning: " << Escaped(sentence) << '\n';
  }
  if (const auto problem = Adapt(choices, opened->settings)) {
    return Tell(*problem, streams);
  }
  return choices.project || choices.overwrites
             ? run(opened->settings, streams)
             : RepeatAndCompare(opened->then, opened->now.record, choices, opened->settings,
                                streams, run);
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
  const auto results = CompareResults(*record, FolderOfRecord(record_path));
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/check_command.h"

#include <ostream>
#include <set>

#include "allocation/allocation_check.h"
#include "allocation/allocation_command.h"
#include "allocation/allocation_record.h"
#include "cli/check_json.h"
#include "cli/check_text.h"
#include "cli/foreign_hint.h"
#include "cli/missing_options.h"
#include "cli/short_result.h"
#include "cli/simulation_result_text.h"
#include "cli/tell.h"
#include "interchange/export/allocation_exporter.h"
#include "simulation/simulation_check.h"
#include "simulation/simulation_checks.h"
#include "simulation/simulation_command.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

/// Tells the options for all missing names with the first of them.
template <typename Settings>
void AddMissingOptions(const Settings& settings, AlikeGroups<Problem>& faults) {
  bool is_told = false;
  faults.Complete([&](Problem& fault) {
    if (!is_told) {
      auto completed = WithMissingOptions(fault, settings, false);
      is_told = completed.found != fault.found;
      fault = std::move(completed);
    }
  });
}

/// Tells which of the files at fault are those of other programs, each once.
void TellForeignFiles(const FullCheck& check, const std::vector<RecordedInput>& inputs,
                      FileSource& source, const CommandLineStreams& streams) {
  std::set<std::string> told;
  for (const Alike<Problem>& group : check.faults.Groups()) {
    if (told.insert(group.kept.front().file).second &&
        TellForeignFile(group.kept.front().file, inputs, source, streams)) {
      return;  // the command converts all of them
    }
  }
}

/// `summary` tells what was read, where all of it is sound.
ExitCode TellCheck(const FullCheck& check, const std::optional<RunForecast>& forecast,
                   const std::string& summary, bool as_json,
                   const std::vector<RecordedInput>& inputs, FileSource& source,
                   const CommandLineStreams& streams) {
  const ExitCode code = check.IsSound() ? ExitCode::kDone : ExitCode::kBadInput;
  if (as_json) {
    streams.out << JsonText(check, forecast);
    return code;
  }
  streams.err << FaultsText(check);
  TellForeignFiles(check, inputs, source, streams);
  TellWarnings(check.warnings, streams);
  if (check.IsSound()) {
    streams.err << summary;
    streams.out << ContentsText(check) << (forecast ? ForecastText(*forecast) : "") << "ok\n";
  }
  return code;
}

/// Tells a fault that leaves nothing else to be checked.
ExitCode TellFault(const TypedCheck& choices, bool as_json, FileSource& source,
                   const CommandLineStreams& streams) {
  if (!as_json) {
    return Tell(*choices.fault, streams);
  }
  FullCheck check;
  AlikeGroups<Problem> of_no_interest;
  check.flow = choices.simulates
                   ? SimulationFlowName(ReadableSimulation(choices.typed, of_no_interest).flow)
                   : AllocationFlowName(ReadableAllocation(choices.typed, of_no_interest).flow);
  check.faults.Add(*choices.fault);
  return TellCheck(check, std::nullopt, "", as_json, {}, source, streams);
}

}  // namespace

ExitCode RunCheck(const TypedCheck& choices, const CommandLineStreams& streams,
                  FileSource& source) {
  if (choices.format != "text" && choices.format != "json") {
    streams.err << "There is no format " << Quoted(choices.format) << ": text or json.\n";
    return ExitCode::kBadInput;
  }
  const bool as_json = choices.format == "json";
  if (choices.fault) {
    return TellFault(choices, as_json, source, streams);
  }
  if (const auto project = choices.typed.find("project"); project != choices.typed.end()) {
    SettleProject(ProjectFolder(project->second), streams);
  }
  if (choices.simulates) {
    auto check = CheckSimulation(choices.typed, choices.may_replace_other_flow, source);
    AddMissingOptions(check.settings, check.faults);
    if (choices.odd_options) {
      check.warnings.push_back(*choices.odd_options);
    }
    if (!as_json && WarnsOfManyIterations(check.settings.flow, check.settings.iterations)) {
      streams.err << kManyIterations << '\n';
    }
    const std::string summary = check.input ? InputSummary(check.settings, *check.input) : "";
    const auto forecast = check.input && check.IsSound()
                              ? std::optional(ForecastRun(check.settings, *check.input))
                              : std::nullopt;
    return TellCheck(check, forecast, summary, as_json, InputsOf(check.settings), source, streams);
  }
  auto check = CheckAllocation(choices.typed, choices.may_replace_other_flow, source);
  AddMissingOptions(check.settings, check.faults);
  if (check.input) {
    AllocationExporter exporter;
    if (auto fault = exporter.Prepare(check.settings, *check.input, source)) {
      check.faults.Add(std::move(*fault));
    }
  }
  const std::string summary =
      check.input ? InputSummary(check.settings.flow, *check.input) + '\n' : "";
  return TellCheck(check, std::nullopt, summary, as_json, InputsOf(check.settings), source,
                   streams);
}

}  // namespace kaldo

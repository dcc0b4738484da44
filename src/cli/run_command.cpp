// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/run_command.h"

#include <ostream>

#include "allocation/allocation_run.h"
#include "cli/foreign_hint.h"
#include "cli/missing_options.h"
#include "cli/result_json.h"
#include "cli/short_result.h"
#include "cli/simulation_result_text.h"
#include "cli/tell.h"
#include "cli/terminal_progress.h"
#include "interchange/export/allocation_exporter.h"
#include "interchange/export/simulation_exporter.h"
#include "simulation/simulation_checks.h"

namespace kaldo {

namespace {

/// In which form the short result of a run is told.
enum class ResultForm { kText, kJson };

/// The short result of a finished run.
template <typename Settings, typename Run>
std::string ResultText(ResultForm form, const Settings& settings, const Run& run,
                       const std::vector<std::string>& exports) {
  return form == ResultForm::kJson ? ResultJson(settings, run, exports)
                                   : EscapedLines(ShortResult(settings, run, exports));
}

ExitCode AllocateAndTell(const AllocationSettings& settings, ResultForm form,
                         const CommandLineStreams& streams, Workforce& workforce) {
  AllocationExporter exporter;
  const auto run = [&] {
    TerminalProgress progress(streams.err, streams.err_is_terminal);
    return RunAllocation(settings, progress, workforce, &exporter);
  }();
  if (!run) {
    const ExitCode code = Tell(WithMissingOptions(run.error(), settings), streams);
    TellForeignFile(run.error().file, InputsOf(settings), workforce.Files(), streams);
    return code;
  }
  TellWarnings(run->input.warnings, streams);
  streams.out << ResultText(form, settings, *run, exporter.Made());
  return ExitCode::kDone;
}

ExitCode SimulateAndTell(const SimulationSettings& settings, ResultForm form,
                         const CommandLineStreams& streams, Workforce& workforce) {
  if (WarnsOfManyIterations(settings.flow, settings.iterations)) {
    streams.err << kManyIterations << '\n';
  }
  SimulationExporter exporter;
  const auto run = [&] {
    TerminalProgress progress(streams.err, streams.err_is_terminal);
    return RunSimulation(settings, progress, workforce, &exporter);
  }();
  if (!run) {
    const ExitCode code = Tell(WithMissingOptions(run.error(), settings), streams);
    TellForeignFile(run.error().file, InputsOf(settings), workforce.Files(), streams);
    return code;
  }
  TellWarnings(run->input.warnings, streams);
  streams.out << ResultText(form, settings, *run, exporter.Made());
  return ExitCode::kDone;
}

}  // namespace

ExitCode RunAndTell(tl::expected<RunSettings, Problem> settings, const Decisions& decisions,
                    const CommandLineStreams& streams, Workforce& workforce) {
  if (decisions.format != "text" && decisions.format != "json") {
    streams.err << "There is no format " << Quoted(decisions.format) << ": text or json.\n";
    return ExitCode::kBadInput;
  }
  const ResultForm form = decisions.format == "json" ? ResultForm::kJson : ResultForm::kText;
  if (!settings) {
    return Tell(settings.error(), streams);
  }
  std::visit(
      [&](auto& each) {
        each.may_replace_other_flow = decisions.may_replace_other_flow;
        each.kept_work = decisions.resumes ? KeptWork::kResumed : each.kept_work;
      },
      *settings);
  std::ostream nowhere(nullptr);
  const CommandLineStreams told =
      decisions.is_quiet ? CommandLineStreams{nowhere, streams.err, false} : streams;
  if (const auto* allocation = std::get_if<AllocationSettings>(&*settings)) {
    return AllocateAndTell(*allocation, form, told, workforce);
  }
  return SimulateAndTell(std::get<SimulationSettings>(*settings), form, told, workforce);
}

}  // namespace kaldo

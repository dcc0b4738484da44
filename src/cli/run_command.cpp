// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/run_command.h"

#include <ostream>

#include "allocation/allocation_run.h"
#include "cli/refusal.h"
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

/// Runs the settings with `run`, one of RunAllocation and RunSimulation, and tells what came of it.
template <typename Exporter, typename Settings, typename Run>
ExitCode RunWith(Run run, const Settings& settings, ResultForm form,
                 const CommandLineStreams& streams, Workforce& workforce) {
  Exporter exporter;
  const auto finished = [&] {
    TerminalProgress progress(streams.err, streams.err_is_terminal);
    return run(settings, progress, workforce, &exporter);
  }();
  if (!finished) {
    return TellRefusal(finished.error(), settings, workforce.Files(), streams);
  }
  TellWarnings(finished->input.warnings, streams);
  streams.out << ResultText(form, settings, *finished, exporter.Made());
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
    const auto run = [](auto&&... all) { return RunAllocation(all...); };
    return RunWith<AllocationExporter>(run, *allocation, form, told, workforce);
  }
  const auto& simulation = std::get<SimulationSettings>(*settings);
  if (WarnsOfManyIterations(simulation.flow, simulation.iterations)) {
    told.err << kManyIterations << '\n';
  }
  const auto run = [](auto&&... all) { return RunSimulation(all...); };
  return RunWith<SimulationExporter>(run, simulation, form, told, workforce);
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include <new>
#include <ostream>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "allocation/allocation_command.h"
#include "allocation/allocation_run.h"
#include "base/version.h"
#include "cli/recorded_run.h"
#include "cli/short_result.h"
#include "cli/simulation_result_text.h"
#include "cli/tell.h"
#include "cli/terminal_progress.h"
#include "cli/typed_options.h"
#include "cli/usage_error.h"
#include "runs/project_lock.h"
#include "runs/report_set.h"
#include "simulation/run_settings.h"
#include "simulation/simulation_checks.h"
#include "simulation/simulation_command.h"

namespace kaldo {

namespace {

constexpr std::string_view kExamples =
    "Examples:\n"
    "  kaldo allocate --project lake --loci loci.txt --parents parents.txt \\\n"
    "                 --offspring young.txt\n"
    "  kaldo allocate --project ponds --loci loci.txt --males males.txt --females females.txt \\\n"
    "                 --offspring young.txt --tolerance 2 --sequence\n"
    "  kaldo simulate --project trial --loci loci.txt --collected-parents parents.txt \\\n"
    "                 --uncollected-sample parents.txt --uncollected 20 \\\n"
    "                 --iterations 100 --offspring-per-iteration 200 --seed 1\n"
    "  kaldo rerun \"lake/Run record.toml\"\n"
    "  kaldo verify lake\n"
    "\n"
    "Exit codes: 0 done, 1 failed while running, 2 bad input or usage, 3 verify or rerun found a\n"
    "difference, 130 stopped by Ctrl-C.";

void TellWarnings(const std::vector<Warning>& warnings, const CommandLineStreams& streams) {
  for (const std::string& line : WarningLines(warnings)) {
    streams.err << "Warning: " << line << '\n';
  }
}

ExitCode AllocateAndTell(const AllocationSettings& settings, const CommandLineStreams& streams,
                         Workforce& workforce) {
  const auto run = [&] {
    TerminalProgress progress(streams.err, streams.err_is_terminal);
    return RunAllocation(settings, progress, workforce);
  }();
  if (!run) {
    return Tell(run.error(), streams);
  }
  TellWarnings(run->input.warnings, streams);
  streams.out << EscapedLines(ShortResult(settings, *run));
  return ExitCode::kDone;
}

ExitCode SimulateAndTell(const SimulationSettings& settings, const CommandLineStreams& streams,
                         Workforce& workforce) {
  if (WarnsOfManyIterations(settings.flow, settings.iterations)) {
    streams.err << kManyIterations << '\n';
  }
  const auto run = [&] {
    TerminalProgress progress(streams.err, streams.err_is_terminal);
    return RunSimulation(settings, progress, workforce);
  }();
  if (!run) {
    return Tell(run.error(), streams);
  }
  TellWarnings(run->input.warnings, streams);
  streams.out << EscapedLines(ShortResult(settings, *run));
  return ExitCode::kDone;
}

/// Runs with the settings, unless they are at fault.
ExitCode RunAndTell(tl::expected<RunSettings, Problem> settings, bool may_replace_other_flow,
                    const CommandLineStreams& streams, Workforce& workforce) {
  if (!settings) {
    return Tell(settings.error(), streams);
  }
  std::visit([&](auto& each) { each.may_replace_other_flow = may_replace_other_flow; }, *settings);
  if (const auto* allocation = std::get_if<AllocationSettings>(&*settings)) {
    return AllocateAndTell(*allocation, streams, workforce);
  }
  return SimulateAndTell(std::get<SimulationSettings>(*settings), streams, workforce);
}

ExitCode RunCheck(const TypedSettings& typed, const CommandLineStreams& streams) {
  const auto settings = AllocationFrom(typed);
  if (!settings) {
    return Tell(settings.error(), streams);
  }
  if (const auto recovered = RecoverProject(ProjectFolder(settings->project))) {
    streams.err << Escaped(*recovered) << '\n';
  }
  const auto input = LoadAllocationInput(*settings);
  if (!input) {
    return Tell(input.error(), streams);
  }
  TellWarnings(input->warnings, streams);
  streams.err << InputSummary(settings->flow, *input) << '\n';
  streams.out << "ok\n";
  return ExitCode::kDone;
}

std::string VersionLine() { return fmt::format("kaldo {} ({})", Version(), BuildNote()); }

/// The commands of the program with their options, and what was typed for them.
struct Commands {
  CLI::App app{
      "KALDO allocates offspring to their parents from microsatellite genotypes when only\n"
      "part of the true parents has been collected.",
      "kaldo"};
  CLI::App* allocate =
      app.add_subcommand("allocate", "Allocate every offspring to its most likely pair of parents");
  CLI::App* check = app.add_subcommand("check", "Check files and choices; write nothing");
  CLI::App* simulate =
      app.add_subcommand("simulate", "Estimate how far allocations with these loci can be trusted");
  CLI::App* rerun =
      app.add_subcommand("rerun", "Repeat a run from its run record and compare the results");
  CLI::App* verify = app.add_subcommand("verify", "Tell whether results and inputs are unchanged");

  TypedOptions allocation;  ///< of allocate and check
  TypedOptions simulation;
  RerunChoices rerun_choices;
  std::string verified;
  bool may_replace_other_flow = false;

  Commands() {
    app.require_subcommand(0, 1);
    allocation.AddTo(*allocate, AllocationSettingTable());
    allocation.AddTo(*check, AllocationSettingTable());
    simulation.AddTo(*simulate, SimulationSettingTable());
    AddRecordOptions();
    for (CLI::App* const command : {allocate, simulate, rerun}) {
      command->add_flag("--replace", may_replace_other_flow,
                        "Replace results of another flow in the project folder, too");
    }
    for (CLI::App* const command : {&app, allocate, simulate, check, rerun, verify}) {
      command->set_version_flag("--version", VersionLine());
      command->footer(std::string(kExamples));
    }
  }

 private:
  void AddRecordOptions() {
    RerunChoices& choices = rerun_choices;
    rerun->add_option("record", choices.record, "A project folder, or the run record in it")
        ->type_name("FILE")
        ->required();
    rerun
        ->add_option("--threads", choices.threads,
                     "Threads; default: all usable cores (kaldo-mpi: 1 per process)")
        ->type_name("N");
    CLI::Option* const project =
        rerun->add_option("--project", choices.project, "Write the results into this folder")
            ->type_name("DIR");
    rerun->add_flag("--overwrite", choices.overwrites, "Replace the results beside the record")
        ->excludes(project);
    rerun->add_flag("--with-changed-inputs", choices.with_changed_inputs,
                    "Run although input files have changed");
    verify->add_option("record", verified, "A project folder, or the run record in it")
        ->type_name("FILE")
        ->required();
  }
};

ExitCode Dispatch(const std::vector<std::string>& arguments, const CommandLineStreams& streams,
                  Workforce& workforce) {
  Commands commands;
  std::vector<std::string> backwards(arguments.rbegin(), arguments.rend());
  try {
    commands.app.parse(std::move(backwards));
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
      commands.app.exit(error, streams.out, streams.err);
      return ExitCode::kDone;
    }
    streams.err << UsageErrorText(commands.app, error)
                << "\nRun with --help for more information.\n";
    return ExitCode::kBadInput;
  }
  if (commands.allocate->parsed()) {
    return RunAndTell(AllocationFrom(commands.allocation.Given()), commands.may_replace_other_flow,
                      streams, workforce);
  }
  if (commands.simulate->parsed()) {
    return RunAndTell(SimulationFrom(commands.simulation.Given()), commands.may_replace_other_flow,
                      streams, workforce);
  }
  if (commands.check->parsed()) {
    return RunCheck(commands.allocation.Given(), streams);
  }
  if (commands.rerun->parsed()) {
    return RunRerun(commands.rerun_choices, streams,
                    [&](const RunSettings& settings, const CommandLineStreams& told) {
                      return RunAndTell(settings, commands.may_replace_other_flow, told, workforce);
                    });
  }
  if (commands.verify->parsed()) {
    return RunVerify(commands.verified, streams);
  }
  streams.err << commands.app.help();
  return ExitCode::kBadInput;
}

}  // namespace

ExitCode RunCommandLine(const std::vector<std::string>& arguments,
                        const CommandLineStreams& streams) {
  LocalThreads threads;
  return RunCommandLine(arguments, streams, threads);
}

ExitCode RunCommandLine(const std::vector<std::string>& arguments,
                        const CommandLineStreams& streams, Workforce& workforce) {
  try {
    return Dispatch(arguments, streams, workforce);
  } catch (const RunStopped& stopped) {
    streams.err << stopped.what() << '\n';
    return ExitCode::kStopped;
  } catch (const RunRefused& refused) {
    return Tell(refused.Reason(), streams);
  } catch (const std::bad_alloc&) {
    streams.err << "Out of memory. The results of earlier runs are as they were.\n";
  } catch (const std::exception& error) {
    streams.err << Escaped(error.what()) << '\n';
  }
  return ExitCode::kFailed;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include <filesystem>
#include <new>
#include <ostream>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "allocation/allocation_command.h"
#include "allocation/allocation_run.h"
#include "base/version.h"
#include "cli/short_result.h"
#include "cli/simulation_result_text.h"
#include "cli/terminal_progress.h"
#include "cli/typed_options.h"
#include "runs/project_lock.h"
#include "runs/report_set.h"
#include "runs/value_kinds.h"
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
    "\n"
    "Exit codes: 0 done, 1 failed while running, 2 bad input or usage, 130 stopped by Ctrl-C.";

ExitCode Tell(const Problem& problem, const CommandLineStreams& streams) {
  streams.err << SentenceOf(problem) << '\n';
  if (const std::string detail = DetailLine(problem); !detail.empty()) {
    streams.err << detail << '\n';
  }
  return ExitCode::kBadInput;
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
  streams.out << ShortResult(settings, *run);
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
  streams.out << ShortResult(settings, *run);
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
    streams.err << *recovered << '\n';
  }
  const auto input = LoadAllocationInput(*settings);
  if (!input) {
    return Tell(input.error(), streams);
  }
  streams.err << InputSummary(settings->flow, *input) << '\n';
  streams.out << "ok\n";
  return ExitCode::kDone;
}

/// What may make a repeated run differ, or its files be missing.
void TellChanges(const RunRecord& record, const CommandLineStreams& streams) {
  if (record.version != Version()) {
    streams.err << fmt::format("Warning: the record was made by KALDO {}, this is KALDO {}.\n",
                               record.version, Version());
  }
  for (const std::string& changed : ChangedInputs(record)) {
    streams.err << "Warning: " << changed << '\n';
  }
  std::error_code ignored;
  if (std::filesystem::current_path(ignored).string() != record.folder) {
    streams.err << fmt::format("Note: the recorded run was started in the folder {}\n",
                               Quoted(record.folder));
  }
}

ExitCode RunRerun(const std::string& path, const std::optional<std::string>& threads,
                  bool may_replace_other_flow, const CommandLineStreams& streams,
                  Workforce& workforce) {
  const auto record = ReadRunRecord(path);
  if (!record) {
    return Tell(record.error(), streams);
  }
  auto settings = RunSettingsOf(*record, path);
  if (HasKnownFlow(*record)) {
    TellChanges(*record, streams);
  }
  if (settings && threads) {
    const auto number = ParseThreads("--threads", *threads);
    if (!number) {
      return Tell(number.error(), streams);
    }
    std::visit([&](auto& each) { each.threads = *number; }, *settings);
  }
  return RunAndTell(std::move(settings), may_replace_other_flow, streams, workforce);
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
  CLI::App* rerun = app.add_subcommand("rerun", "Repeat a run from its run record");

  TypedOptions allocation;  ///< of allocate and check
  TypedOptions simulation;
  std::string record;
  std::optional<std::string> rerun_threads;
  bool may_replace_other_flow = false;

  Commands() {
    app.require_subcommand(0, 1);
    allocation.AddTo(*allocate, AllocationSettingTable());
    allocation.AddTo(*check, AllocationSettingTable());
    simulation.AddTo(*simulate, SimulationSettingTable());
    rerun->add_option("record", record, "The file \"Run record.toml\" of a project folder")
        ->type_name("FILE")
        ->required();
    rerun
        ->add_option("--threads", rerun_threads,
                     "Threads; default: all cores (kaldo-mpi: 1 per process)")
        ->type_name("N");
    for (CLI::App* const command : {allocate, simulate, rerun}) {
      command->add_flag("--replace", may_replace_other_flow,
                        "Replace results of another flow in the project folder, too");
    }
    for (CLI::App* const command : {&app, allocate, simulate, check, rerun}) {
      command->set_version_flag("--version", VersionLine());
      command->footer(std::string(kExamples));
    }
  }
};

ExitCode Dispatch(const std::vector<std::string>& arguments, const CommandLineStreams& streams,
                  Workforce& workforce) {
  Commands commands;
  std::vector<std::string> backwards(arguments.rbegin(), arguments.rend());
  try {
    commands.app.parse(std::move(backwards));
  } catch (const CLI::ParseError& error) {
    const int code = commands.app.exit(error, streams.out, streams.err);
    return code == 0 ? ExitCode::kDone : ExitCode::kBadInput;
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
    return RunRerun(commands.record, commands.rerun_threads, commands.may_replace_other_flow,
                    streams, workforce);
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
    streams.err << error.what() << '\n';
  }
  return ExitCode::kFailed;
}

}  // namespace kaldo

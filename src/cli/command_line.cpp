// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include <initializer_list>
#include <new>
#include <ostream>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "allocation/allocation_command.h"
#include "base/version.h"
#include "cli/check_command.h"
#include "cli/completion.h"
#include "cli/convert_command.h"
#include "cli/export_command.h"
#include "cli/foreign_hint.h"
#include "cli/help_footer.h"
#include "cli/import_command.h"
#include "cli/loci_by_name.h"
#include "cli/recorded_run.h"
#include "cli/run_command.h"
#include "cli/settings_of_record.h"
#include "cli/tell.h"
#include "cli/typed_options.h"
#include "cli/usage_error.h"
#include "runs/report_set.h"
#include "simulation/run_settings.h"
#include "simulation/simulation_command.h"

namespace kaldo {

namespace {

/// Ways to type settings that are not settings themselves.
struct TypedShortcuts {
  std::optional<std::string> record;  ///< whose settings are taken where nothing else is said
  std::optional<std::string> dropped_loci;

  tl::expected<TypedSettings, Problem> In(TypedSettings typed, bool of_simulation) const {
    if (dropped_loci) {
      typed[std::string(kDropKey)] = *dropped_loci;
    }
    return record ? WithSettingsOfRecord(std::move(typed), *record, of_simulation)
                        .and_then(WithLociByName)
                  : WithLociByName(std::move(typed));
  }
};

std::string VersionLine() { return fmt::format("kaldo {} ({})", Version(), BuildNote()); }

/// The commands of the program with their options, and what was typed for them.
struct Commands {
  CLI::App app{
      "KALDO allocates offspring to their parents from microsatellite genotypes when only\n"
      "part of the true parents has been collected.",
      "kaldo"};
  // Paths may begin with "/" on every system: options never do.
  CLI::App* allocate = app.allow_windows_style_options(false)->add_subcommand(
      "allocate", "Allocate every offspring to its most likely pair of parents");
  CLI::App* check =
      app.add_subcommand("check", "Tell all that is wrong with files and choices; write nothing");
  CLI::App* check_simulation =
      check->add_subcommand("simulate", "Check the files and choices of a simulation");
  CLI::App* simulate =
      app.add_subcommand("simulate", "Estimate how far allocations with these loci can be trusted");
  CLI::App* rerun =
      app.add_subcommand("rerun", "Repeat a run from its run record and compare the results");
  CLI::App* export_results =
      app.add_subcommand("export", "Write the results of a recorded run in the forms of others");
  CLI::App* convert = app.add_subcommand(
      "convert", "Write the genotypes of a study in the form of another program");
  CLI::App* verify = app.add_subcommand("verify", "Tell whether results and inputs are unchanged");

  CLI::App* import =
      app.add_subcommand("import", "Convert files of other programs into those of a run");
  CLI::App* completion =
      app.add_subcommand("completion", "Print a script that completes command lines in a shell");

  TypedOptions allocation;  ///< of allocate and check
  TypedOptions simulation;  ///< of simulate and check simulate
  TypedCheck typed_check;
  TypedImport typed_import;
  RerunChoices rerun_choices;
  ExportChoices export_choices;
  ConvertChoices convert_choices;
  std::map<std::string, std::optional<std::string>> converted;  ///< its files, by setting
  std::string verified;
  std::string shell;
  Decisions decisions;
  TypedShortcuts shortcuts;

  Commands() {
    app.require_subcommand(0, 1);
    allocation.AddTo(*allocate, AllocationSettingTable());
    allocation.AddTo(*check, AllocationSettingTable());
    simulation.AddTo(*simulate, SimulationSettingTable());
    simulation.AddTo(*check_simulation, SimulationSettingTable());
    AddCheckOptions();
    AddShortcuts();
    AddRecordOptions();
    typed_import.AddTo(*import);
    AddExportOptions();
    AddConvertOptions();
    for (CLI::App* const command : {allocate, simulate, check, check_simulation, rerun}) {
      command->add_flag("--replace", decisions.may_replace_other_flow,
                        "Replace results of another flow in the project folder, too");
    }
    for (CLI::App* const command : {allocate, simulate, rerun}) {
      CLI::Option* const resume =
          command->add_flag("--resume", decisions.resumes,
                            "Go on with the unfinished run in the project folder, if there is one");
      if (command == rerun) {
        resume->needs(rerun->get_option("--project"));
      }
    }
    AddCompletionOptions();
    for (const auto& [command, name] :
         std::initializer_list<std::pair<CLI::App*, std::string_view>>{
             {&app, ""},
             {allocate, "allocate"},
             {simulate, "simulate"},
             {check, "check"},
             {check_simulation, "check simulate"},
             {rerun, "rerun"},
             {export_results, "export"},
             {convert, "convert"},
             {verify, "verify"},
             {import, "import"},
             {completion, "completion"}}) {
      command->set_version_flag("--version", VersionLine());
      command->footer(HelpFooter(name));
    }
  }

  /// Of `kaldo convert`. It takes parents as they are.
  TypedSettings GenotypeFiles() const {
    TypedSettings typed = {{"allow_undefined_parents", ""}};
    for (const auto& [key, path] : converted) {
      if (path) {
        typed[key] = *path;
      }
    }
    return typed;
  }

 private:
  void AddShortcuts() {
    for (CLI::App* const command : {allocate, simulate, check, check_simulation}) {
      command
          ->add_option("--settings", shortcuts.record,
                       "Run record whose settings are taken where no option says otherwise")
          ->type_name("FILE")
          ->group("Files");
      command
          ->add_option("--drop", shortcuts.dropped_loci,
                       "Loci not in use, by name, between commas; all others are")
          ->type_name("NAME,...")
          ->group("Method");
      command->add_flag("--quiet", decisions.is_quiet,
                        "No short result and no progress, warnings and faults alone");
    }
  }

  void AddCheckOptions() {
    for (CLI::App* const command : {check, check_simulation}) {
      command
          ->add_option("--format", typed_check.format,
                       "Form of the answer: text, or json for programs")
          ->type_name("NAME")
          ->group("Output")
          ->default_str("text");
      command->get_option("--project")
          ->description("Folder for the results, which is looked at, too");
    }
    for (CLI::App* const command : {allocate, simulate}) {
      command
          ->add_option("--format", decisions.format,
                       "Form of the short result: text, or json for programs")
          ->type_name("NAME")
          ->group("Output")
          ->default_str("text");
    }
  }

  void AddCompletionOptions() {
    completion->add_option("shell", shell, "bash, zsh or fish")->type_name("SHELL")->required();
  }

  void AddExportOptions() {
    ExportChoices& choices = export_choices;
    const auto add = [this](const std::string& name, auto& place, const std::string& kind,
                            const std::string& help) {
      return export_results->add_option(name, place, help)->type_name(kind);
    };
    add("record", choices.record, "FILE",
        "A project folder, or the run record in it. The run is repeated in memory from its input "
        "files, which must be unchanged; of its results only what is asked for is written")
        ->required();
    add("--as", choices.forms, "FORMS", "Forms, between commas: tsv, xlsx, html, pedigree")
        ->required();
    add("--to", choices.folder, "DIR", "Write into this folder, not beside the record");
    for (const auto& [key, place] :
         std::initializer_list<std::pair<std::string_view, std::optional<std::string>*>>{
             {"sexes", &choices.sexes},
             {"names", &choices.names},
             {"min_probability", &choices.min_probability},
             {"threads", &choices.threads}}) {
      for (const auto& setting : AllocationSettingTable()) {
        if (setting.key == key) {
          add(setting.option, *place, setting.metavar, setting.help);
        }
      }
    }
  }

  void AddConvertOptions() {
    convert->add_option("--as", convert_choices.format, "The form: genepop or csv")
        ->type_name("NAME")
        ->required();
    convert->add_option("--to", convert_choices.file, "The file to be made")
        ->type_name("FILE")
        ->required();
    convert
        ->add_option("--names", convert_choices.names,
                     "Names before an import; default: names.tsv beside the offspring, where it is")
        ->type_name("FILE");
    for (const auto& setting : AllocationSettingTable()) {
      const bool is_genotypes = setting.metavar == "FILE" && !setting.may_be_left_out;
      if (is_genotypes) {
        convert->add_option(setting.option, converted[setting.key], setting.help)
            ->type_name(setting.metavar);
      }
    }
  }

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

ExitCode CheckAndTell(Commands& commands, const CommandLineStreams& streams, FileSource& source) {
  TypedCheck& check = commands.typed_check;
  check.simulates = commands.check_simulation->parsed();
  check.typed = (check.simulates ? commands.simulation : commands.allocation).Given();
  if (auto typed = commands.shortcuts.In(check.typed, check.simulates)) {
    check.typed = std::move(*typed);
  } else {
    check.fault = std::move(typed.error());
  }
  if (check.simulates) {
    check.odd_options = WarnOfOptionsWithoutEffect(commands.simulation.Given(), check.typed);
  }
  check.may_replace_other_flow = commands.decisions.may_replace_other_flow;
  if (check.simulates && !commands.allocation.Given().empty()) {
    streams.err << "The options of a simulation stand behind \"check simulate\".\n";
    return ExitCode::kBadInput;
  }
  std::ostream nowhere(nullptr);
  return RunCheck(
      check,
      commands.decisions.is_quiet ? CommandLineStreams{nowhere, streams.err, false} : streams,
      source);
}

ExitCode PrintCompletion(const Commands& commands, const CommandLineStreams& streams) {
  const auto script = CompletionScript(commands.app, commands.shell);
  if (!script) {
    streams.err << "There is no completion for the shell " << Quoted(commands.shell)
                << ", but for bash, zsh and fish.\n";
    return ExitCode::kBadInput;
  }
  streams.out << *script;
  return ExitCode::kDone;
}

ExitCode SimulateTyped(const Commands& commands, const CommandLineStreams& streams,
                       Workforce& workforce) {
  const TypedSettings given = commands.simulation.Given();
  const auto typed = commands.shortcuts.In(given, true);
  if (typed) {
    if (const auto problem = MissingProject(*typed)) {
      return Tell(*problem, streams);
    }
  }
  auto settings = typed.and_then(SimulationFrom);
  const ExitCode code = RunAndTell(std::move(settings), commands.decisions, streams, workforce);
  const auto odd = typed ? WarnOfOptionsWithoutEffect(given, *typed) : std::nullopt;
  if (code == ExitCode::kDone && odd) {
    TellWarnings({*odd}, streams);
  }
  return code;
}

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
    return RunAndTell(
        commands.shortcuts.In(commands.allocation.Given(), false).and_then(AllocationFrom),
        commands.decisions, streams, workforce);
  }
  if (commands.simulate->parsed()) {
    return SimulateTyped(commands, streams, workforce);
  }
  if (commands.check->parsed()) {
    return CheckAndTell(commands, streams, workforce.Files());
  }
  if (commands.rerun->parsed()) {
    return RunRerun(commands.rerun_choices, streams,
                    [&](const RunSettings& settings, const CommandLineStreams& told) {
                      return RunAndTell(settings, commands.decisions, told, workforce);
                    });
  }
  if (commands.export_results->parsed()) {
    return RunExport(commands.export_choices, streams, workforce);
  }
  if (commands.convert->parsed()) {
    return RunConvert(commands.convert_choices, commands.GenotypeFiles(), streams,
                      workforce.Files());
  }
  if (commands.verify->parsed()) {
    return RunVerify(commands.verified, streams);
  }
  if (commands.import->parsed()) {
    return RunImport(commands.typed_import, streams, workforce.Files());
  }
  if (commands.completion->parsed()) {
    return PrintCompletion(commands, streams);
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/completed_words.h"

#include <map>
#include <sstream>

#include <CLI/CLI.hpp>

#include "allocation/allocation_settings.h"
#include "cli/completion.h"
#include "interchange/import/format_readers.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

namespace {

using Choices = std::map<std::string, std::vector<std::string>>;

template <typename Settings>
void AddChoices(SettingTable<Settings> table, Choices& choices) {
  for (const Setting<Settings>& setting : table) {
    for (const std::string_view choice : setting.value.choices) {
      choices[setting.option].emplace_back(choice);
    }
  }
}

void AddImportChoices(Choices& choices) {
  for (const FormatReader& reader : FormatReaders()) {
    choices["--from"].emplace_back(reader.key);
  }
  choices["--half-missing"] = {"undefined", "error"};
  choices["--missing-parents"] = {"drop-individuals", "drop-loci", "least", "keep"};
  choices["--rows"] = {"1", "2"};
}

/// The names that the options of a command take.
Choices ChoicesOf(const std::string& path) {
  Choices choices;
  if (path == "allocate" || path == "check") {
    AddChoices(AllocationSettingTable(), choices);
  } else if (path == "simulate" || path == "check simulate") {
    AddChoices(SimulationSettingTable(), choices);
  }
  choices["--format"] = {"text", "json"};
  if (path == "import") {
    AddImportChoices(choices);
  } else if (path == "export") {
    for (const NamedExportForm& form : kAllExportForms) {
      choices["--as"].emplace_back(form.name);
    }
  } else if (path == "convert") {
    choices["--as"] = {"genepop", "csv"};
  }
  return choices;
}

CompletedOption OptionOf(const CLI::Option& option, Choices& choices) {
  CompletedOption completed{.name = option.get_name(),
                            .help = option.get_description(),
                            .kind = option.get_type_name(),
                            .value = CompletedValue::kNames,
                            .choices = {}};
  if (option.get_expected_max() == 0) {
    completed.value = CompletedValue::kNone;
  } else if (completed.kind == "FILE") {
    completed.value = CompletedValue::kFile;
  } else if (completed.kind == "DIR") {
    completed.value = CompletedValue::kFolder;
  } else {
    completed.choices = choices[completed.name];
  }
  return completed;
}

void AddCommands(const CLI::App& app, const std::string& path,
                 std::vector<CompletedCommand>& commands) {
  CompletedCommand command;
  command.path = path;
  Choices choices = ChoicesOf(path);
  for (const CLI::Option* option : app.get_options()) {
    if (!option->get_positional()) {
      command.options.push_back(OptionOf(*option, choices));
    } else if (option->get_type_name() == "FILE") {
      command.takes_file = true;
    } else {
      for (const std::string_view shell : CompletedShells()) {
        command.words.emplace_back(shell);
      }
    }
  }
  const auto inner = app.get_subcommands({});
  for (const CLI::App* each : inner) {
    command.words.push_back(each->get_name());
  }
  commands.push_back(std::move(command));
  for (const CLI::App* each : inner) {
    AddCommands(*each, path.empty() ? each->get_name() : path + ' ' + each->get_name(), commands);
  }
}

}  // namespace

std::vector<std::string> CompletedCommand::Parts() const {
  std::istringstream words_of_path(path);
  std::vector<std::string> parts;
  for (std::string part; words_of_path >> part;) {
    parts.push_back(part);
  }
  return parts;
}

std::string CompletedCommand::LastWord() const { return path.substr(path.rfind(' ') + 1); }

bool CompletedCommand::IsInside(const CompletedCommand& other) const {
  const auto parts = Parts();
  auto outer = other.Parts();
  if (parts.size() != outer.size() + 1) {
    return false;
  }
  outer.push_back(parts.back());
  return outer == parts;
}

std::vector<CompletedCommand> CommandsOf(const CLI::App& app) {
  std::vector<CompletedCommand> commands;
  AddCommands(app, "", commands);
  return commands;
}

}  // namespace kaldo

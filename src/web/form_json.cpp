// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/form_json.h"

#include <map>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/completed_words.h"
#include "cli/import_command.h"

namespace kaldo {

Json ImportFormJson() {
  CLI::App program;
  CLI::App& command = *program.add_subcommand("import");
  TypedImport typed;
  typed.AddTo(command);
  std::map<std::string, std::vector<std::string>> choices;
  const CompletedCommand completed = CommandsOf(program).back();
  for (const CompletedOption& option : completed.options) {
    choices[option.name] = option.choices;
  }
  Json form = Json::array();
  for (const CLI::Option* const option : command.get_options()) {
    if (option->get_lnames().empty() || option->get_lnames().front() == "help") {
      continue;
    }
    const std::string& name = option->get_lnames().front();
    const bool is_flag = option->get_expected_max() == 0;
    form.push_back({{"key", name},
                    {"option", "--" + name},
                    {"metavar", is_flag ? "" : option->get_type_name()},
                    {"group", option->get_group()},
                    {"help", option->get_description()},
                    {"flag", is_flag},
                    {"alone", false},
                    {"required", false},
                    {"applies", true},
                    {"choices", choices["--" + name]},
                    {"text", option->get_default_str()},
                    {"shown", Json()}});
  }
  return form;
}

}  // namespace kaldo

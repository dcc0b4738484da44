// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/completion.h"

#include <algorithm>
#include <array>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "cli/completed_words.h"

namespace kaldo {

namespace {

/// `text` between single quotes, as all three shells read it.
std::string InQuotes(const std::string& text) {
  std::string quoted = "'";
  for (const char character : text) {
    quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
  }
  return quoted + "'";
}

// bash: a function that looks at the words typed so far.

std::string BashValues(const CompletedOption& option) {
  switch (option.value) {
    case CompletedValue::kFile:
      return "_kaldo_files -f";
    case CompletedValue::kFolder:
      return "_kaldo_files -d";
    default:
      return fmt::format(R"(COMPREPLY=($(compgen -W "{}" -- "$word")))",
                         fmt::join(option.choices, " "));
  }
}

std::string BashScript(const std::vector<CompletedCommand>& commands) {
  std::string paths;
  std::string values;
  std::string words;
  for (const CompletedCommand& command : commands) {
    if (!command.path.empty()) {
      paths += fmt::format("{}\"{}\"", paths.empty() ? "" : "|", command.path);
    }
    std::vector<std::string> all = command.words;
    for (const CompletedOption& option : command.options) {
      all.push_back(option.name);
      if (option.value != CompletedValue::kNone) {
        values += fmt::format("    \"{} {}\") {}; return ;;\n", command.path, option.name,
                              BashValues(option));
      }
    }
    words += fmt::format("    \"{}\") words=\"{}\"{} ;;\n", command.path, fmt::join(all, " "),
                         command.takes_file ? "; files=yes" : "");
  }
  return fmt::format(R"(# Completion of kaldo for bash.
_kaldo_files() {{
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen "$1" -- "$word")
}}

_kaldo() {{
  local word="${{COMP_WORDS[COMP_CWORD]}}" option="${{COMP_WORDS[COMP_CWORD-1]}}"
  local command="" words="" files="" k
  if [[ $word == "=" ]]; then
    word=""
  elif [[ $option == "=" ]]; then
    option="${{COMP_WORDS[COMP_CWORD-2]}}"
  fi
  for ((k = 1; k < COMP_CWORD; ++k)); do
    case "${{command:+$command }}${{COMP_WORDS[k]}}" in
      {}) command="${{command:+$command }}${{COMP_WORDS[k]}}" ;;
    esac
  done
  COMPREPLY=()
  case "$command $option" in
{}  esac
  case "$command" in
{}  esac
  if [[ -n $files && $word != -* ]]; then
    _kaldo_files -f
  else
    COMPREPLY=($(compgen -W "$words" -- "$word"))
  fi
}}

complete -F _kaldo kaldo
)",
                     paths, values, words);
}

// zsh: a function per command that hands its options to _arguments.

/// Help as zsh reads it inside the brackets of an argument.
std::string ZshHelp(const std::string& help) {
  std::string escaped;
  for (const char character : help) {
    if (std::string_view("[]:\\").find(character) != std::string_view::npos) {
      escaped += '\\';
    }
    escaped += character;
  }
  return escaped;
}

std::string ZshArgument(const CompletedOption& option) {
  std::string action;
  switch (option.value) {
    case CompletedValue::kNone:
      return InQuotes(fmt::format("{}[{}]", option.name, ZshHelp(option.help)));
    case CompletedValue::kFile:
      action = "_files";
      break;
    case CompletedValue::kFolder:
      action = "_files -/";
      break;
    default:
      action = fmt::format("({})", fmt::join(option.choices, " "));
  }
  return InQuotes(fmt::format("{}=[{}]:{}:{}", option.name, ZshHelp(option.help),
                              ZshHelp(option.kind), action == "()" ? " " : action));
}

std::string ZshFunctionName(std::string path) {
  std::replace(path.begin(), path.end(), ' ', '_');
  return path.empty() ? "_kaldo" : "_kaldo_" + path;
}

std::string ZshFunction(const CompletedCommand& command,
                        const std::vector<CompletedCommand>& commands) {
  std::string text = ZshFunctionName(command.path) + "() {\n";
  for (const CompletedCommand& inner : commands) {
    if (inner.IsInside(command)) {
      text += fmt::format(
          "  if (( CURRENT > 2 )) && [[ $words[2] == {} ]]; then\n"
          "    shift words; (( CURRENT-- )); {}; return\n"
          "  fi\n",
          inner.LastWord(), ZshFunctionName(inner.path));
    }
  }
  text += "  _arguments";
  for (const CompletedOption& option : command.options) {
    text += " \\\n    " + ZshArgument(option);
  }
  if (!command.words.empty()) {
    text += fmt::format(" \\\n    '1: :({})'", fmt::join(command.words, " "));
  } else if (command.takes_file) {
    text += " \\\n    '1:file:_files'";
  }
  return text + "\n}\n\n";
}

std::string ZshScript(const std::vector<CompletedCommand>& commands) {
  std::string text = "#compdef kaldo\n# Completion of kaldo for zsh.\n\n";
  for (const CompletedCommand& command : commands) {
    text += ZshFunction(command, commands);
  }
  return text + "compdef _kaldo kaldo\n[[ $funcstack[1] == _kaldo ]] && _kaldo \"$@\"\ntrue\n";
}

// fish: one line per word.

/// True at a command, and not at one whose name only ends alike.
std::string FishCondition(const CompletedCommand& command,
                          const std::vector<CompletedCommand>& commands) {
  if (command.path.empty()) {
    return "__fish_use_subcommand";
  }
  std::vector<std::string> conditions;
  for (const std::string& word : command.Parts()) {
    conditions.push_back("__fish_seen_subcommand_from " + word);
  }
  for (const CompletedCommand& other : commands) {
    if (other.IsInside(command)) {
      conditions.push_back("not __fish_seen_subcommand_from " + other.LastWord());
    } else if (command.Parts().size() == 1 && other.Parts().size() > 1 &&
               other.LastWord() == command.path) {
      conditions.push_back("not __fish_seen_subcommand_from " + other.Parts().front());
    }
  }
  return fmt::format("{}", fmt::join(conditions, "; and "));
}

std::string FishOption(const CompletedOption& option) {
  std::string text = fmt::format(" -l {}", option.name.substr(2));
  switch (option.value) {
    case CompletedValue::kNone:
      break;
    case CompletedValue::kFile:
      text += " -r -F";
      break;
    case CompletedValue::kFolder:
      text += " -x -a '(__fish_complete_directories)'";
      break;
    default:
      text += fmt::format(" -x -a '{}'", fmt::join(option.choices, " "));
  }
  return text + " -d " + InQuotes(option.help);
}

std::string FishScript(const std::vector<CompletedCommand>& commands) {
  std::string text = "# Completion of kaldo for fish.\ncomplete -c kaldo -f\n";
  for (const CompletedCommand& command : commands) {
    const std::string begin =
        fmt::format("complete -c kaldo -n '{}'", FishCondition(command, commands));
    if (!command.words.empty()) {
      text += fmt::format("{} -a '{}'\n", begin, fmt::join(command.words, " "));
    }
    if (command.takes_file) {
      text += begin + " -F\n";
    }
    for (const CompletedOption& option : command.options) {
      text += begin + FishOption(option) + '\n';
    }
  }
  return text;
}

struct Shell {
  std::string_view name;
  std::string (*script)(const std::vector<CompletedCommand>& commands);
};

constexpr std::array<Shell, 3> kShells{
    {{"bash", BashScript}, {"zsh", ZshScript}, {"fish", FishScript}}};

}  // namespace

std::vector<std::string_view> CompletedShells() {
  std::vector<std::string_view> names;
  names.reserve(kShells.size());
  for (const Shell& shell : kShells) {
    names.push_back(shell.name);
  }
  return names;
}

std::optional<std::string> CompletionScript(const CLI::App& app, std::string_view shell) {
  for (const Shell& each : kShells) {
    if (each.name == shell) {
      return each.script(CommandsOf(app));
    }
  }
  return std::nullopt;
}

}  // namespace kaldo

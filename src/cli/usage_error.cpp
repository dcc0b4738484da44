// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/usage_error.h"

#include <algorithm>
#include <numeric>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "base/number_text.h"
#include "base/problem.h"

namespace kaldo {

namespace {

/// The letters to be put in, left out or exchanged to make one word of the other.
std::size_t EditDistance(std::string_view one, std::string_view other) {
  std::vector<std::size_t> row(other.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < one.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < other.size(); ++j) {
      const std::size_t exchanged = diagonal + (one[i] == other[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({exchanged, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

/// " Did you mean ...?", or nothing where no name is near. The beginning of a name is near.
std::string Suggestion(std::string_view word, const std::vector<std::string>& names) {
  constexpr std::size_t kFarthest = 3;
  const auto distance = [word](const std::string& name) {
    const bool begins = word.size() > kFarthest && name.starts_with(word);
    return begins ? 0 : EditDistance(word, name);
  };
  const auto nearest = std::min_element(
      names.begin(), names.end(),
      [&](const auto& one, const auto& other) { return distance(one) < distance(other); });
  return nearest != names.end() && distance(*nearest) < std::min(kFarthest, word.size())
             ? fmt::format(" Did you mean {}?", *nearest)
             : "";
}

/// The innermost command that was given.
const CLI::App& CommandIn(const CLI::App& app) {
  const auto commands = app.get_subcommands();
  return commands.empty() ? app : CommandIn(*commands.front());
}

std::vector<std::string> OptionsOf(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options()) {
    names.push_back(option->get_name());
  }
  return names;
}

std::vector<std::string> CommandsOf(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::App* command : app.get_subcommands({})) {
    names.push_back(command->get_name());
  }
  return names;
}

std::string UnexpectedText(const CLI::App& app, const std::string& word) {
  const CLI::App& command = CommandIn(app);
  if (word.starts_with("-") && !ParseDouble(word)) {
    const std::string option = word.substr(0, word.find('='));
    return fmt::format("There is no option {}.{}", Quoted(option),
                       Suggestion(option, OptionsOf(command)));
  }
  if (&command == &app) {
    return fmt::format("There is no command {}.{}", Quoted(word),
                       Suggestion(word, CommandsOf(app)));
  }
  return fmt::format(
      "{} belongs to no option.{}", Quoted(word),
      ParseDouble(word) ? " The values of one option have commas between them and no blanks." : "");
}

/// The option that has too few values or too many.
std::string MismatchText(const CLI::App& app, const std::string& message) {
  const std::string name = message.substr(0, message.find(':'));
  const CLI::Option* const option = CommandIn(app).get_option_no_throw(name);
  if (option == nullptr) {
    return message;
  }
  return option->results().size() > 1
             ? fmt::format("{} is given {} times.", name, option->results().size())
             : fmt::format("{0} needs a value: {0} {1}", name, option->get_type_name());
}

}  // namespace

std::string UsageErrorText(const CLI::App& app, const CLI::ParseError& error) {
  const auto unexpected = app.remaining(true);
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr && !unexpected.empty()) {
    return UnexpectedText(app, unexpected.front());
  }
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    return MismatchText(app, error.what());
  }
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
    const std::string command = CommandIn(app).get_name();
    const std::string missing = error.what();
    if (missing.starts_with("--")) {
      return fmt::format("{} is missing: see kaldo {} --help", missing.substr(0, missing.find(' ')),
                         command);
    }
    return command == "completion"
               ? "The shell is missing: bash, zsh or fish"
               : "The run record is missing: the file \"Run record.toml\" of a project folder";
  }
  return error.what();
}

}  // namespace kaldo

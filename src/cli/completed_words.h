// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kaldo {

/// What a shell offers behind an option.
enum class CompletedValue {
  kNone,  ///< the option has no value
  kFile,
  kFolder,
  kNames,  ///< some names, or a value that nobody can guess
};

struct CompletedOption {
  std::string name;  ///< with its "--"
  std::string help;
  std::string kind;  ///< of its value: "FILE"
  CompletedValue value = CompletedValue::kNone;
  std::vector<std::string> choices;  ///< kNames
};

/// A command with the words that may follow it.
struct CompletedCommand {
  std::string path;                ///< "check simulate"; empty for the program itself
  std::vector<std::string> words;  ///< the commands inside it, or the names that it takes
  bool takes_file = false;
  std::vector<CompletedOption> options;

  std::vector<std::string> Parts() const;
  std::string LastWord() const;

  /// Whether this is a command of the other one, not the program.
  bool IsInside(const CompletedCommand& other) const;
};

/// The commands of the program, itself first, each before those inside it.
std::vector<CompletedCommand> CommandsOf(const CLI::App& app);

}  // namespace kaldo

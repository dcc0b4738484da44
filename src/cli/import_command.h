// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_source.h"
#include "cli/command_line.h"
#include "interchange/import/import_choices.h"

namespace CLI {
class App;
}

namespace kaldo {

/// What was typed behind `kaldo import`.
class TypedImport {
 public:
  /// The options point into this object, which must stay where it is.
  void AddTo(CLI::App& command);

  /// The choices, or the sentence for what is not understood.
  tl::expected<ImportChoices, std::string> Choices() const;

 private:
  void AddFiles(CLI::App& command);
  void AddColumns(CLI::App& command);
  void AddRules(CLI::App& command);
  std::vector<ImportedFile> Files() const;

  ImportChoices choices_;
  std::vector<std::string> files_;
  std::string parents_;
  std::string males_;
  std::string females_;
  std::string offspring_;
  std::string offspring_populations_;
  std::string loci_;
  std::string leading_;
  std::string repeat_lengths_;
  std::string half_missing_ = "undefined";
  std::string missing_parents_;
};

/// Converts the files and tells what came of it; the last line is the command that runs the study.
ExitCode RunImport(const TypedImport& typed, const CommandLineStreams& streams, FileSource& source);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "cli/command_line.h"

namespace kaldo {

/// What was typed behind `kaldo export`.
struct ExportChoices {
  std::string record;  ///< the file, or its folder
  std::string forms;   ///< names between commas
  std::optional<std::string> sexes;
  std::optional<std::string> names;
  std::optional<std::string> min_probability;
  std::optional<std::string> threads;
  std::optional<std::string> folder;  ///< for the files, in place of that of the record
};

/// Repeats a recorded run in memory and writes its results in other forms. Beside the record they
/// become files of the recorded run: the record lists them as if the run had written them. In
/// another folder nothing but the files is written.
ExitCode RunExport(const ExportChoices& choices, const CommandLineStreams& streams,
                   Workforce& workforce);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "cli/command_line.h"
#include "simulation/run_settings.h"

namespace kaldo {

/// What was typed behind `kaldo rerun`.
struct RerunChoices {
  std::string record;  ///< the file, or its folder
  std::optional<std::string> threads;
  std::optional<std::string> project;  ///< where the results go
  bool overwrites = false;             ///< those beside the record are replaced
  bool with_changed_inputs = false;
};

/// Runs with settings and tells the result.
using Runner = std::function<ExitCode(const RunSettings&, const CommandLineStreams&)>;

/// Repeats a recorded run. Unless it is said where to, the results go nowhere but are compared with
/// those that the record lists. What a crashed run left half done is settled first.
ExitCode RunRerun(RerunChoices choices, const CommandLineStreams& streams, const Runner& run);

/// Tells whether the results beside a record are those of its run, and its inputs what they were.
/// `path` is the record or its folder. What a crashed run left half done is settled first.
ExitCode RunVerify(const std::string& path, const CommandLineStreams& streams);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "base/warning.h"
#include "cli/command_line.h"
#include "runs/setting.h"

namespace kaldo {

/// What was typed behind `kaldo check`.
struct TypedCheck {
  TypedSettings typed;  ///< those of the run
  /// Of loci by name or the settings of an earlier run: then nothing else is told, since `typed` is
  /// not what the run would get.
  std::optional<Problem> fault;
  std::optional<Warning> odd_options;  ///< that do nothing
  bool simulates = false;              ///< `kaldo check simulate`
  std::string format = "text";
  bool may_replace_other_flow = false;
};

/// Tells everything that is wrong with the files and the choices of a run, and what is in the
/// files. Nothing is written, but what a crashed run left half done in the project folder is
/// settled first.
ExitCode RunCheck(const TypedCheck& choices, const CommandLineStreams& streams, FileSource& source);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <tl/expected.hpp>

#include "cli/command_line.h"
#include "simulation/run_settings.h"

namespace kaldo {

/// What a user decides at the moment, for any run; no record has it.
struct Decisions {
  bool may_replace_other_flow = false;
  bool resumes = false;
  bool is_quiet = false;
  std::string format = "text";  ///< of the short result
};

/// Runs with the settings, unless they are at fault.
ExitCode RunAndTell(tl::expected<RunSettings, Problem> settings, const Decisions& decisions,
                    const CommandLineStreams& streams, Workforce& workforce);

}  // namespace kaldo

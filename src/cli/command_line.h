// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "cli/exit_code.h"
#include "runs/workforce.h"

namespace kaldo {

/// Where a command writes. Tests put their own streams here.
struct CommandLineStreams {
  std::ostream& out;             ///< the short result and what was asked for
  std::ostream& err;             ///< messages and progress
  bool err_is_terminal = false;  ///< a progress bar makes sense
};

/// Runs one command of the `kaldo` program; `arguments` are those behind the program's name.
/// Nothing is thrown: whatever happens becomes a message and an exit code. Without a workforce the
/// threads of this process compute.
ExitCode RunCommandLine(const std::vector<std::string>& arguments,
                        const CommandLineStreams& streams);
ExitCode RunCommandLine(const std::vector<std::string>& arguments,
                        const CommandLineStreams& streams, Workforce& workforce);

}  // namespace kaldo

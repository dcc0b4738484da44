// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/problem.h"
#include "cli/command_line.h"

namespace kaldo {

/// Tells the sentence and the detail of a problem; the exit code that goes with it.
ExitCode Tell(const Problem& problem, const CommandLineStreams& streams);

}  // namespace kaldo

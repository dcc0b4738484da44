// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "base/problem.h"
#include "base/warning.h"
#include "cli/command_line.h"
#include "runs/project_folder.h"

namespace kaldo {

/// Tells the sentence and the detail of a problem; the exit code that goes with it.
ExitCode Tell(const Problem& problem, const CommandLineStreams& streams);

/// Tells the warnings, alike ones summed up.
void TellWarnings(const std::vector<Warning>& warnings, const CommandLineStreams& streams);

/// Settles what a crashed run left half done in the folder, and tells it.
void SettleProject(const ProjectFolder& project, const CommandLineStreams& streams);

}  // namespace kaldo

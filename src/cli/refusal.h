// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/foreign_hint.h"
#include "cli/missing_options.h"
#include "cli/tell.h"

namespace kaldo {

/// Tells why a run of these settings was refused: in the words of their options, and with the
/// command that converts a file of another program.
template <typename Settings>
ExitCode TellRefusal(const Problem& problem, const Settings& settings, FileSource& source,
                     const CommandLineStreams& streams) {
  const ExitCode code = Tell(WithMissingOptions(problem, settings), streams);
  TellForeignFile(problem.file, InputsOf(settings), source, streams);
  return code;
}

}  // namespace kaldo

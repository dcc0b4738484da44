// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "allocation/full_check.h"
#include "base/file_source.h"
#include "cli/command_line.h"
#include "runs/run_record.h"

namespace kaldo {

/// The input files that settings name, with their roles.
template <typename Settings>
std::vector<RecordedInput> InputsOf(const Settings& settings);

/// Where the file at fault is one of another program, tells which one and the command that converts
/// it, with the other such inputs of the run. False where it is none.
bool TellForeignFile(const std::string& file, const std::vector<RecordedInput>& inputs,
                     FileSource& source, const CommandLineStreams& streams);

}  // namespace kaldo

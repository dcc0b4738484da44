// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <tl/expected.hpp>

#include "cli/command_line.h"
#include "simulation/recorded_files.h"
#include "simulation/run_settings.h"

namespace kaldo {

/// A run record that is to be used again.
struct OpenedRecord {
  std::string path;      ///< of the file
  RunRecord then;        ///< as it stands there
  LocatedRecord now;     ///< with the files where they are now
  RunSettings settings;  ///< with the files where they are now
};

/// The folder in which a record lies.
std::string FolderOfRecord(const std::string& record);

/// The record that is meant where it or its folder is named. What a crashed run left half done in
/// the folder is settled first.
std::string RecordToRead(const std::string& path, const CommandLineStreams& streams);

/// Reads a record, looks its input files up and tells what a user should know of them.
tl::expected<OpenedRecord, Problem> OpenRecord(const std::string& path,
                                               const CommandLineStreams& streams);

/// Told where input files are no longer what they were; `advice` says what to do.
Problem ChangedInputsProblem(const OpenedRecord& record, const std::string& advice);

}  // namespace kaldo

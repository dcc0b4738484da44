// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include <tl/expected.hpp>

#include "runs/run_record.h"

namespace kaldo {

/// A record whose input files were looked up, with the paths at which they are now.
struct LocatedRecord {
  RunRecord record;
  InputChanges changes;
};

/// A Problem when a setting of the record names a file that the record does not list among its
/// inputs, or a file of the record is a device, a pipe or a folder: it would be read on trust, and
/// might never end. `path` names the record.
std::optional<Problem> RefuseRecordedFiles(const RunRecord& record, const std::string& path);

/// The working folder of the recorded run: the recorded one where it is still there, else the
/// folder that lies to the record as that one did, since a study is moved or mailed as a whole.
std::string WorkingFolderNow(const RunRecord& record, const std::string& path);

/// Looks for the input files: at their recorded paths; when nothing is there, in the folder in
/// which the recorded run was started, and at the same place relative to the record, so that a
/// study that was moved or mailed as a whole is found. A file with the recorded contents is
/// preferred. Problems as above.
tl::expected<LocatedRecord, Problem> LocateRecordedFiles(RunRecord record, const std::string& path);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "runs/project_folder.h"
#include "runs/run_record.h"

namespace kaldo {

/// The run record that a user means who names it or the project folder in which it is.
std::string RecordNamedBy(const std::string& path);

/// The run whose results are in a project folder, from its record; nothing without a record that
/// can be read.
std::optional<RunRecord> EarlierRun(const ProjectFolder& project);

/// What a new run of `flow` would do there that the user must allow, when another flow has left its
/// results: `"lake" holds the results of another flow (simulation, sexed, of 2026-...).`
std::optional<std::string> OtherFlowSentence(const ProjectFolder& project, std::string_view flow);

/// What a run has replaced: the flow and the date of the earlier run, and whether its input files
/// were others.
std::string ReplacedSentence(const ProjectFolder& project, const RunRecord& earlier,
                             std::string_view flow, const std::vector<RecordedInput>& inputs);

}  // namespace kaldo

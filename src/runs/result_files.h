// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace kaldo {

/// The names of all files, with their leading "/", that a run of a flow can leave in its project
/// folder beside its run record. `flow` is as in run records; an unknown one has no files. A folder
/// holds the files of one run only: a run of another flow takes all of these away.
std::span<const std::string_view> ResultFiles(std::string_view flow);

/// The names of the further files, in forms of other programs, that a run of a flow writes where
/// they are wanted. A folder may hold files of such names that are a user's own: a run takes away
/// only those that the record of an earlier run lists.
std::span<const std::string_view> ExportFiles(std::string_view flow);
bool IsExportFile(std::string_view flow, std::string_view file);

/// True for the name of a file that a run of the flow may leave, the run record and the further
/// files included.
bool IsResultFile(std::string_view flow, std::string_view file);

}  // namespace kaldo

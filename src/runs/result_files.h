// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace kaldo {

/// The names of all files, with their leading "/", that a run of a flow can leave in its project
/// folder beside its run record. `flow` is as in run records; an unknown one has no files. A folder
/// holds the files of one run only: a run of another flow takes all of these away.
std::span<const std::string_view> ResultFiles(std::string_view flow);

/// True for the name of a file that a run of the flow may leave, the run record included.
bool IsResultFile(std::string_view flow, std::string_view file);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace kaldo {

/// Processors that a container or a batch system grants this process by control groups, of either
/// version, whole or in part: 1.5 for a quota of one and a half. The narrowest of the group and all
/// above it counts; nothing where none of them sets a quota. `root` stands before /proc and /sys.
std::optional<double> ProcessorsOfControlGroup(const std::string& root = {});

/// The threads with which a run is fastest here: as many as there are processors, but no more than
/// the process may run on (affinity), a control group grants, or the batch system promised the task
/// (SLURM_CPUS_PER_TASK). More would only wait for each other. At least 1.
unsigned UsableThreads();

}  // namespace kaldo

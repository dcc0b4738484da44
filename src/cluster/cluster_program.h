// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runs/keeping_pace.h"

namespace kaldo {

/// The whole of a process of `kaldo-mpi`: process 0 runs the command, the others work for it. The
/// exit code of the process; it does not return where the processes can no longer end together.
int RunClusterProgram(int argc, char** argv, KeepingPace pace = {});

}  // namespace kaldo

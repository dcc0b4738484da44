// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runs/keeping_pace.h"

namespace kaldo {

/// The whole of the program `kaldo`, from its arguments to its exit code.
int RunProgram(int argc, char** argv, KeepingPace pace = {});

}  // namespace kaldo

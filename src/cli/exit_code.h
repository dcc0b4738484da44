// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kaldo {

/// What the program tells the shell.
enum class ExitCode {
  kDone = 0,
  kFailed = 1,     ///< the run could not be finished: disk, memory, a fault
  kBadInput = 2,   ///< wrong command line, files or choices; nothing was written
  kDiffers = 3,    ///< results or inputs are not what a run record says
  kStopped = 130,  ///< ended by Ctrl-C; earlier results are as they were
};

}  // namespace kaldo

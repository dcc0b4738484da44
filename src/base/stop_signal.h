// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kaldo {

/// From now on Ctrl-C, the termination signal that batch systems send, and the closing of the
/// terminal only set a flag; the run sees it and ends cleanly. A second Ctrl-C ends the program at
/// once. What was ignored when the program began (`nohup`) stays ignored. A limit on the size of
/// files becomes an error of writing, as a full disk is.
void CatchStopSignals();

/// True once such a signal has come.
bool StopSignalled();

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kaldo {

/// From now on Ctrl-C, and the termination signal that batch systems send, only set a flag; the
/// run sees it and ends cleanly.
void CatchStopSignals();

/// True once such a signal has come.
bool StopSignalled();

}  // namespace kaldo

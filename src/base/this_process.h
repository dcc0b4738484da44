// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kaldo {

/// "process 4711 on node07", for a user who wonders which program that is.
std::string ThisProcess();

/// True when messages go to a terminal, not to a file.
bool MessagesGoToTerminal();

/// The working folder, or nothing when it has gone.
std::string CurrentFolder();

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string>

namespace kaldo {

/// A command line for the clipboard that goes to its working folder first, since the paths in it
/// start from there: `cd /home/ana/lakes && kaldo allocate ...`.
QString CommandInFolder(const std::string& folder, const std::string& command);

/// The same in the working folder of this program.
QString CommandHere(const std::string& command);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace kaldo {

/// What stands below the options in the help of a command, "" for the program: examples of that
/// command, which run beside the example data, and the exit codes.
std::string HelpFooter(std::string_view command);

}  // namespace kaldo

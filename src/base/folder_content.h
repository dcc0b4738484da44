// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace kaldo {

/// The names of all that is in a folder; none when it cannot be read.
std::vector<std::string> NamesIn(const std::string& folder);

/// Removes a folder with everything in it. One that is not there is no error.
std::error_code RemoveFolder(const std::string& folder);

}  // namespace kaldo

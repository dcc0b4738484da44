// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <system_error>

namespace kaldo {

/// Why nothing can be written into a folder that exists: its permissions, a disk that is read-only
/// or full. No error where something can, as far as can be told without writing.
std::error_code WhyNotWritable(const std::string& folder);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>

namespace kaldo {

/// A path as records, reports and sentences tell it: UTF-8, and with "/" between its parts on every
/// system, so that a record made on one is understood on another.
inline std::string PathText(const std::filesystem::path& path) {
  std::string text = path.string();
  if constexpr (std::filesystem::path::preferred_separator != '/') {
    std::replace(text.begin(), text.end(), '\\', '/');
  }
  return text;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

namespace kaldo {

// Texts of paths are UTF-8 on every system. Where the system's own are not, as on Windows, a text
// must not be taken for a path by itself: the library reads it in the code page of the user.

/// The file or folder that a text names.
inline std::filesystem::path FilePath(std::string_view text) {
  return {std::u8string(text.begin(), text.end())};
}

/// A path as records, reports and sentences tell it, with "/" between its parts on every system,
/// so that a record made on one is understood on another.
inline std::string PathText(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  std::string text(utf8.begin(), utf8.end());
  if constexpr (std::filesystem::path::preferred_separator != '/') {
    std::replace(text.begin(), text.end(), '\\', '/');
  }
  return text;
}

}  // namespace kaldo

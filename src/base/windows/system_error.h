// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <system_error>

#define WIN32_LEAN_AND_MEAN  // without what is rarely used
#include <windows.h>

namespace kaldo {

/// What a number of GetLastError() means.
inline std::error_code SystemError(DWORD number) {
  return {static_cast<int>(number), std::system_category()};
}

}  // namespace kaldo

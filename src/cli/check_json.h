// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/full_check.h"

namespace kaldo {

/// All of a check for other programs, as docs/file-formats.md describes it.
std::string JsonText(const FullCheck& check);

}  // namespace kaldo

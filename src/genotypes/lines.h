// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "genotypes/token_file.h"

namespace kaldo {

/// The words of one line of a file.
using Line = std::span<const Token>;

/// The lines that hold a word. They carry no meaning for the method, but show where fields went
/// astray.
std::vector<Line> LinesOf(std::span<const Token> tokens);

}  // namespace kaldo

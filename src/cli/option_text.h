// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

#include "base/problem.h"
#include "method/error_model.h"

namespace kaldo {

// The texts behind options as values. Nothing is guessed: the whole text must be what is wanted,
// "010" is ten, and a decimal comma is an error that says so.

/// A whole number; `option` names it in the message.
tl::expected<std::int32_t, Problem> ParseWholeOption(std::string_view option,
                                                     std::string_view text);

/// A number with a decimal point.
tl::expected<double, Problem> ParseRealOption(std::string_view option, std::string_view text);

/// "none", "uniform=EPS", "nonuniform" or "nonuniform=M2,M1,FOCAL,P1,P2".
tl::expected<ErrorModel, Problem> ParseErrorModel(std::string_view text);

/// Names between commas; blanks around them do not count. An empty text is an empty list.
std::vector<std::string> ParseNames(std::string_view text);

/// Whole numbers between commas, the positions of a cumulative sequence.
tl::expected<std::vector<std::int32_t>, Problem> ParseSequence(std::string_view text);

/// The seed of the random numbers: 0 to 4294967295.
tl::expected<std::uint32_t, Problem> ParseSeed(std::string_view text);

/// The number of threads: 1 or more.
tl::expected<unsigned, Problem> ParseThreads(std::string_view text);

}  // namespace kaldo

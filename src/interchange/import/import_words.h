// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

namespace kaldo {

/// Names between commas, blanks around them left out: "Ssa85, Ssa197".
std::vector<std::string> NamesBetweenCommas(std::string_view text);

/// Loci with the length of their repeats in base pairs, "L=4,M=2", or the sentence for the word
/// that is none.
tl::expected<std::map<std::string, unsigned>, std::string> RepeatLengthsIn(std::string_view text);

}  // namespace kaldo

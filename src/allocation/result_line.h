// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// The line of one offspring (counted from 0 in its file) in the results report: its name, the two
/// parents or "UC", their ranks in the parental files (counted from 1, separators included), and
/// the numbers of loci at which an error had to be assumed. In the non-sexed flow a parent accepted
/// alone stands in the first column, whichever side of the pair it was; in the sexed flow males
/// stay first and females second.
std::string ResultLine(Flow flow, const AllocationInput& input, const AllocationResult& result,
                       std::size_t offspring);

}  // namespace kaldo

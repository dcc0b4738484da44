// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "allocation/allocation_run.h"

namespace kaldo {

/// What one parent column of an offspring's line tells: the collected parent to which that side is
/// allocated, or nothing for "UC".
struct AllocatedSide {
  std::optional<Slot> parent;
  int errors = 0;  ///< its loci with an offset other than 0
};

/// Both parent columns of an offspring's line.
struct AllocatedSides {
  AllocatedSide first;
  AllocatedSide second;
};

/// Who stands in which column. In the non-sexed flow a parent accepted alone stands first,
/// whichever side of the pair it was; in the sexed flow males stay first and females second.
AllocatedSides SidesOf(Flow flow, const AllocationOutcome& outcome);

/// The place of a collected parent in its file, counted from 1, separators included.
std::uint32_t RankInFile(const AllocationInput& input, Slot parent);

/// The line of one offspring (counted from 0 in its file) in the results report: its name, the two
/// parents or "UC", their ranks in the parental files (counted from 1, separators included), and
/// the numbers of loci at which an error had to be assumed.
std::string ResultLine(Flow flow, const AllocationInput& input, const AllocationResult& result,
                       std::size_t offspring);

}  // namespace kaldo

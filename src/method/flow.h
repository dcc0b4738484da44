// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kaldo {

/// How the collected parents are known. Everything that differs between the two kinds of allocation
/// follows from it: which parents can meet (PartnersOf), whether the order in a pair has a meaning
/// (KeptPairs), and which proportions are reported (AllocationCounters).
enum class Flow {
  kNonSexed,  ///< one file of collected parents; any two of them may be a pair
  kSexed,     ///< a file of males and a file of females; a pair is one male and one female
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "allocation/allocation_file_names.h"

namespace kaldo {

// The names of the files of a simulation that both flows have, beside those that an allocation
// writes, too. The others stand in SimulationTexts.
inline constexpr std::string_view kSummaryFile = "/Summary.xls";
inline constexpr std::string_view kPseudoOffspringFile = "/pseudo-offspring.txt";

inline constexpr std::string_view kReliabilityFile = "/Reliability.tsv";
inline constexpr std::string_view kSubsetsFile = "/Subsets.tsv";
inline constexpr std::string_view kScanFile = "/Scan.tsv";

/// The names of the loci of the last simulation, in the working folder.
inline constexpr std::string_view kSavedLociFile = "SAUVLOCUSTULM.txt";

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace kaldo {

// The names of the files of an allocation in its project folder, with their leading "/". The
// endings ".xls" mean tab-separated text that a spreadsheet opens. Released names are fixed,
// "Transmision" included. ".tsv" are tables for statistics programs.
inline constexpr std::string_view kMaxLikePairsFile = "/Max like pairs.txt";
inline constexpr std::string_view kAllocationResultsFile = "/Allocation results.xls";
inline constexpr std::string_view kTransmissionMatricesFile = "/Transmision matrices.xls";

inline constexpr std::string_view kConfidenceFile = "/Confidence.tsv";
inline constexpr std::string_view kLociFile = "/Loci.tsv";

// These three a simulation writes, too.
inline constexpr std::string_view kServiceFile = "/Service file.xls";
inline constexpr std::string_view kSequenceResultsFile = "/Sequence results.xls";
inline constexpr std::string_view kSteppingErrorFile = "/Stepping error file.xls";

}  // namespace kaldo

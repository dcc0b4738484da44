// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

#include "genotypes/loci_list.h"
#include "genotypes/record_cursor.h"

namespace kaldo {

/// Digits 0 to 9 only; also true of no text at all.
bool IsAllDigits(std::string_view text);

/// Which alleles of a genotype field are undefined, that is, which halves are zeros only.
struct ZeroHalves {
  bool first = false;
  bool second = false;
};

/// Halves a genotype field of an even number of digits: "150000" has only its second half
/// undefined.
ZeroHalves ZeroHalvesOf(std::string_view field);

/// Looks for a line with too few or too many fields in a file that otherwise has one record a line.
/// It is told as a Problem of that kind. Nothing is found in files laid out in another way.
std::optional<Problem> FindMisshapenRecord(const TokenFile& file, RecordLayout layout,
                                           ProblemKind kind);

/// The number of digits of a genotype field (both alleles) of a run: that of the first field of the
/// first parents file. 0 when the file has no individual.
std::size_t DigitsPerField(const TokenFile& first_parents_file, RecordLayout layout);

/// Tests every record of a genotype file for itself, after the file-wide checks: the number of
/// fields, digits only, `digits_per_field` of them and at most 8, names of at most 15 bytes in
/// UTF-8 that can be shown.
std::optional<Problem> CheckRecords(const TokenFile& file, RecordLayout layout,
                                    const LociList& loci, std::size_t digits_per_field);

/// Individuals of a genotype file without its separators. The file must have passed CheckRecords.
std::size_t CountIndividuals(const TokenFile& file, RecordLayout layout);

}  // namespace kaldo

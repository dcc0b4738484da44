// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "genotypes/field_faults.h"
#include "genotypes/lines.h"
#include "genotypes/loci_list.h"
#include "genotypes/record_cursor.h"

namespace kaldo {

/// Whether a line holds a whole record and nothing else.
bool IsOneRecord(Line line, RecordLayout layout);

/// Whether most lines do, as people and spreadsheets write such files.
bool HasRecordPerLine(std::span<const Line> lines, RecordLayout layout);

/// Looks for lines with too few or too many fields in a file that otherwise has one record a line.
/// They are told as Problems of that kind, at most so many. Nothing is found in files laid out in
/// another way.
std::vector<Problem> FindMisshapenRecords(const TokenFile& file, RecordLayout layout,
                                          ProblemKind kind, std::size_t most);

/// The first of them.
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

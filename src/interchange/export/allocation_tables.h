// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export/export_table.h"
#include "interchange/export/exported_study.h"

namespace kaldo {

inline constexpr std::string_view kAllocationsTable = "/Allocations.tsv";
inline constexpr std::string_view kParentsTable = "/Parents.tsv";
inline constexpr std::string_view kSequenceTable = "/Sequence.tsv";

// The tables of an allocation. The study must outlive them. New columns come at the end.

/// A row per offspring.
ExportTable AllocationsTable(const ExportedStudy& study);

/// A row per collected parent.
ExportTable ParentsTable(const ExportedStudy& study);

/// A row per combination of loci.
ExportTable SequenceTable(const ExportedStudy& study);

/// A row per locus of the run, for workbooks and pages: what "/Loci.tsv" tells in short.
ExportTable LociTable(const ExportedStudy& study);

/// The individuals whose names programs that guess types would change.
std::size_t NamesGuessedAnew(const ExportedStudy& study);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "genotypes/loci_list.h"
#include "genotypes/record_cursor.h"

namespace kaldo {

/// Where to look for something in a genotype file.
struct FilePlace {
  std::string word;        ///< what stands there
  std::string individual;  ///< the name at the head of the record
  std::uint32_t line = 0;  ///< counted from 1
};

/// How often something was met in a genotype file, and where first.
struct Sighting {
  std::size_t count = 0;
  FilePlace first;
};

/// A record as the program understands it. A separator has no fields.
struct RecordPreview {
  std::string name;
  std::vector<std::string> fields;
};

/// What a genotype file holds, sound or not: told under a file that was just chosen, long before a
/// run checks it. Made of any words at all.
struct FileSummary {
  std::size_t words = 0;
  std::size_t loci = 0;  ///< fields that should follow each name
  std::size_t individuals = 0;
  std::size_t separators = 0;
  std::size_t empty_groups = 0;    ///< groups between separators without an individual
  std::size_t leftover_words = 0;  ///< over the whole file: words that make no record

  std::map<std::size_t, Sighting> digits;  ///< fields of digits, by the digits of both alleles
  Sighting not_digits;                     ///< fields that are no genotypes
  Sighting missing;                        ///< genotypes of zeros only
  Sighting half_defined;                   ///< genotypes with zeros for one of the two alleles
  Sighting long_names;                     ///< names over 15 bytes

  std::size_t repeated_names = 0;        ///< different names that more than one individual bears
  std::vector<std::string> name_twice;   ///< the first few of them
  std::optional<FilePlace> misshapen;    ///< a line that is no record, where fields went astray
  std::vector<RecordPreview> first_few;  ///< the first records
};

/// Walks over the whole file once. It refuses nothing: what looks wrong is counted.
FileSummary Summarize(const TokenFile& file, RecordLayout layout);

/// One short line of it: "36 individuals in 2 groups, 9 loci, 6 digits per field, no missing
/// genotypes", or what looks wrong: "fields of 5 and 6 digits, see line 12 (B07)".
std::string SummaryLine(const FileSummary& summary);

/// The line under a genotype file that was just chosen. Without a usable names-of-loci file, only
/// the words can be counted. Empty when no file has been chosen.
std::string DescribeGenotypeFile(const std::string& path, const std::string& loci_path,
                                 Separators separators, const FileOpener& open);

/// The line under a names-of-loci file: "9 loci: Ssa85, Ssa197, ...", or why it cannot be one.
std::string DescribeLociFile(const std::string& path, const FileOpener& open);

// Whether these lines tell what a run would refuse, rather than what is in the file.
bool IsGenotypeFileAtFault(const std::string& path, const std::string& loci_path,
                           Separators separators, const FileOpener& open);
bool IsLociFileAtFault(const std::string& path, const FileOpener& open);

}  // namespace kaldo

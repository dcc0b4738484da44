// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "interchange/import/codes.h"
#include "interchange/import/foreign_study.h"
#include "interchange/import/import_log.h"

namespace kaldo {

inline constexpr std::string_view kImportedLoci = "/loci.txt";
inline constexpr std::string_view kImportedParents = "/parents.txt";
inline constexpr std::string_view kImportedMales = "/males.txt";
inline constexpr std::string_view kImportedFemales = "/females.txt";
inline constexpr std::string_view kImportedOffspring = "/offspring.txt";
inline constexpr std::string_view kImportedMothers = "/known-mothers.txt";
inline constexpr std::string_view kImportedCandidates = "/candidates.txt";
inline constexpr std::string_view kImportedNames = "/names.tsv";
inline constexpr std::string_view kImportReport = "/Import report.txt";

/// A file of an imported study.
struct StudyFile {
  std::string_view name;  ///< with its leading "/"
  std::string text;
};

/// A study whose every question is settled.
struct SettledStudy {
  ForeignStudy study;
  bool is_sexed = false;
  std::size_t digits = 0;                ///< of an allele
  std::vector<std::size_t> populations;  ///< of the parents, in order of first appearance
  bool has_groups = false;
  StudyNames names;
};

/// How many digits an allele gets: those of the largest one, at least three.
std::size_t DigitsOfAlleles(const ForeignStudy& study);

/// The populations of parents become groups, unless there is one at most or none are wanted. Those
/// without any parent of one sex are told, and what becomes of populations of offspring.
void SettleGroups(SettledStudy& settled, bool no_groups, ImportLog& log);

/// The files of the study, the report left out.
std::vector<StudyFile> FilesOfStudy(const SettledStudy& settled, ImportLog& log);

}  // namespace kaldo

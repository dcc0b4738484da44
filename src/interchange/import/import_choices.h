// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "interchange/sex.h"

namespace kaldo {

/// Who an individual is in an allocation.
enum class Role : std::uint8_t { kUnknown, kParent, kOffspring };

/// What becomes of parents that are not typed at every locus.
enum class MissingParents : std::uint8_t {
  kRefused,
  kDropIndividuals,  ///< such parents are left out
  kDropLoci,         ///< loci at which a parent is undefined are left out
  kLeast,            ///< loci and parents are left out so that few typed genotypes are lost
  kKeep,             ///< they stay, for runs that allow them
};

/// A file to be imported, and what its name on the command line says of all in it.
struct ImportedFile {
  std::string path;
  Role role = Role::kUnknown;
  Sex sex = Sex::kUnknown;
};

/// Everything that a user chooses for an import.
struct ImportChoices {
  std::vector<ImportedFile> files;
  std::string folder;  ///< into which the study is written

  std::optional<std::string> format;  ///< its name; recognised where nothing is said
  std::optional<std::string> sheet;   ///< of a workbook; the first unless said

  // Lists beside the genotypes; empty where there is none.
  std::string offspring_list;
  std::string father_list;
  std::string mother_list;

  // Heads of columns; usual ones are recognised.
  std::optional<std::string> id_column;
  std::optional<std::string> sex_column;
  std::optional<std::string> group_column;
  std::optional<std::string> role_column;

  std::vector<std::string>
      offspring_populations;      ///< whose members are offspring, all others parents
  std::vector<std::string> loci;  ///< to be kept; all when empty
  std::optional<std::string> missing_code;
  std::map<std::string, unsigned> repeat_lengths;  ///< loci whose alleles are counts of repeats
  MissingParents missing_parents = MissingParents::kRefused;
  std::size_t rows_per_individual = 0;  ///< of STRUCTURE: 1 or 2; 0: as the file looks
  std::vector<std::string> leading;     ///< of STRUCTURE: what stands before the genotypes

  bool half_missing_is_error = false;
  bool no_groups = false;
  bool no_sexes = false;
  bool unique_names = false;
  bool may_replace = false;
};

}  // namespace kaldo

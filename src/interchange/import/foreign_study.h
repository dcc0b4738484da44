// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "interchange/import/allele_cell.h"
#include "interchange/import/import_choices.h"

namespace kaldo {

/// Both alleles of an individual at a locus.
struct ForeignGenotype {
  ForeignAllele first = 0;
  ForeignAllele second = 0;

  bool IsUndefined() const { return first == 0 || second == 0; }
  friend bool operator==(const ForeignGenotype&, const ForeignGenotype&) = default;
};

struct ForeignIndividual {
  std::string name;
  std::size_t file = 0;    ///< its place among the files of the study
  std::uint32_t line = 0;  ///< where it begins
  std::optional<std::size_t> population = {};
  Role role = Role::kUnknown;
  Sex sex = Sex::kUnknown;
  std::vector<ForeignGenotype> genotypes = {};  ///< in the order of the loci
};

/// Candidates that the offspring of a study may have, all together.
inline constexpr std::size_t kMostCandidates = 2'000'000;

/// What is known of the parents of an offspring, by their names.
struct KnownOffspring {
  std::string name;
  std::optional<std::string> mother;
  std::vector<std::string> candidates;  ///< empty: nothing is known of them
};

/// A file as it was read.
struct ReadFile {
  std::string path = {};
  std::string format = {};  ///< "GENEPOP"
  std::string why = {};     ///< what it was taken for that by
  std::string text = {};    ///< "UTF-8, separator tab"
  std::size_t individuals = 0;
};

/// A study as files of other programs tell it. Nothing of it is decided here that is the same for
/// all formats.
struct ForeignStudy {
  std::vector<ReadFile> files;
  std::vector<std::string> loci;
  std::vector<std::string> populations;  ///< in order of first appearance
  std::vector<ForeignIndividual> individuals;
  std::vector<KnownOffspring> known;
};

}  // namespace kaldo

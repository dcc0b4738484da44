// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

#include "interchange/export/exported_study.h"

namespace kaldo {

/// An individual of a pedigree.
struct PedigreeRow {
  std::string name;  ///< as it is called in the study
  std::string code;  ///< without blanks, for programs that take none
  Sex sex = Sex::kUnknown;

  /// The places of its parents in the pedigree: sire and dam, or where sexes are not known both in
  /// the columns of the results.
  std::array<std::optional<std::size_t>, 2> parents;
};

/// Who descends from whom after an allocation: first the founders, each with a row of its own, and
/// everybody behind its parents.
struct Pedigree {
  std::vector<PedigreeRow> rows;
  bool knows_sexes = false;  ///< parents[0] is the sire and parents[1] the dam
};

/// The pedigree of the collected parents and the offspring. A parent with a posterior probability
/// below the least one is left out, and so is one without a probability. Individuals of one name
/// that are a parent and an offspring are one and the same.
///
/// With `by_sex` every parent of somebody is a sire or a dam. Problems are two parents or two
/// offspring of one name, an individual among its own ancestors and, by sex, pairs of one sex and
/// parents of unknown sex: all of them are listed.
tl::expected<Pedigree, Problem> PedigreeOf(const ExportedStudy& study, bool by_sex);

// The pedigree as programs of quantitative genetics read it. NA or 0 stands for an unknown parent.

/// nadiv and sequoia: id, dam, sire; where sexes are not known id, parent1, parent2.
std::string PlainPedigree(const Pedigree& pedigree);

/// optiSel: Indiv, Sire, Dam, Sex (male, female).
std::string OptiSelPedigree(const Pedigree& pedigree);

/// kinship2: id, dadid, momid, sex (1, 2, 3 unknown). It takes both parents or none: in the place
/// of each missing mate stands an individual of its own.
std::string Kinship2Pedigree(const Pedigree& pedigree);

/// PLINK .fam: family, individual, father, mother, sex (0 unknown), phenotype -9; no heads.
std::string PlinkPedigree(const Pedigree& pedigree);

/// Reads a table of sexes: per line an individual, by its code or its original name, and its sex.
tl::expected<Sexes, Problem> ReadSexes(std::string_view text, const std::string& path,
                                       const AllocationInput& input, const OriginalNames& names);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "interchange/import/foreign_study.h"
#include "interchange/import/import_log.h"

namespace kaldo {

/// A cell with its place.
struct ForeignCell {
  std::string_view text;
  std::uint32_t line = 0;
  std::string_view column;  ///< the head of its column, or the locus
};

/// Takes what the reader of a format finds in one file into the study, by the rules that are the
/// same for all formats: which words are missing, which numbers alleles, which loci are wanted.
class StudyBuilder {
 public:
  /// The next file of the choices. All of them must live as long.
  StudyBuilder(ForeignStudy& study, ImportLog& log, const ImportChoices& choices,
               const ImportedFile& file);

  const ImportChoices& Choices() const { return choices_; }
  ReadFile& File() { return study_.files.back(); }

  void Fault(std::uint32_t line, std::string_view column, std::string_view sample,
             std::string found);

  /// A sentence for the report, the file put before it.
  void Note(const std::string& sentence);
  void Warn(const std::string& sentence);

  /// The loci in the order of the file, before the first individual. Those of a second file may be
  /// in another order. False where they do not fit, which is a fault.
  bool SetLoci(const std::vector<std::string>& names);

  /// Loci of the file, wanted or not.
  std::size_t NumberOfLoci() const { return places_.size(); }
  bool IsWanted(std::size_t locus) const { return places_[locus] != kNotWanted; }

  /// The place of a wanted locus among those of the study.
  std::size_t PlaceOf(std::size_t locus) const { return places_[locus]; }
  const ForeignGenotype& Genotype(const ForeignIndividual& individual, std::size_t locus) const {
    return individual.genotypes[places_[locus]];
  }

  /// A new individual; the last one until the next comes. False where there are too many, which is
  /// a fault.
  bool AddIndividual(std::string_view name, std::uint32_t line);
  ForeignIndividual& Individual() { return study_.individuals.back(); }

  /// One of those of this file, counted from 0.
  ForeignIndividual& IndividualOfFile(std::size_t place) {
    return study_.individuals[first_ + place];
  }

  /// The population of the individual, by its name.
  void SetPopulation(std::string_view name);

  void SetSex(ForeignCell cell);
  void SetRole(ForeignCell cell);

  // The genotype of an individual at a locus of the file.
  void SetAlleles(std::size_t locus, ForeignCell first, ForeignCell second);
  void SetGenotype(std::size_t locus, ForeignCell both);
  void SetAlleles(ForeignIndividual& individual, std::size_t locus, ForeignCell first,
                  ForeignCell second);

  /// What is known of an offspring. False where the candidates of all offspring are too many, which
  /// is a fault.
  bool AddKnown(KnownOffspring known);

 private:
  static constexpr std::size_t kNotWanted = static_cast<std::size_t>(-1);

  void Place(ForeignIndividual& individual, std::size_t locus, ForeignGenotype genotype,
             ForeignCell cell);
  void NoteDecimal(ForeignCell cell);
  void TakeFirstLoci(const std::vector<std::string>& names);
  bool PlaceLoci(const std::vector<std::string>& names);

  ForeignStudy& study_;
  ImportLog& log_;
  const ImportChoices& choices_;
  const ImportedFile& file_;
  std::size_t first_ = study_.individuals.size();  ///< individual of this file
  std::size_t candidates_ = 0;                     ///< of all offspring of this file
  std::vector<std::size_t> places_;                ///< of the loci of the file in the study
  std::vector<std::size_t> digits_;  ///< per locus, of alleles side by side; 0 until one is met
  std::map<std::string, std::size_t, std::less<>> populations_;
};

}  // namespace kaldo

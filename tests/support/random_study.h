// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>

#include <fmt/format.h>

#include "confidence/parent_frequencies.h"
#include "genotypes/catalogued_loci.h"
#include "method/candidate_groups.h"
#include "method/transmission_matrix.h"
#include "method/undefined_parents.h"

namespace kaldo::test {

/// A random small study: few alleles make ties, clones of names make duplicates.
struct RandomStudy {
  Flow flow = Flow::kNonSexed;
  GenotypeTable table;
  std::uint32_t males = 0;  ///< all parents in the non-sexed flow
  std::uint32_t parents = 0;
  std::vector<LocusIndex> loci;
  AlleleCatalogues catalogues;
  std::vector<TransmissionMatrix> matrices;
  std::vector<CandidateGroup> groups;
};

/// The largest figures of a study.
struct StudyShape {
  std::uint32_t parents = 24;
  std::uint32_t loci = 4;
  std::uint32_t alleles = 4;
  std::uint32_t offspring = 4;
  bool groups = false;             ///< some studies have separators among the parents
  bool bred_offspring = false;     ///< most offspring come from two of the parents
  bool undefined_parents = false;  ///< some parents of some studies are undefined at some loci
};

/// Every kind of error model, and one with a negative probability, which runs as it stands.
inline std::vector<ErrorModel> ModelsOfEveryKind() {
  ErrorModel no_error;
  no_error.kind = ErrorKind::kNoError;
  ErrorModel uniform;
  uniform.kind = ErrorKind::kUniform;
  uniform.epsilon = 0.02;
  ErrorModel negative = uniform;
  negative.epsilon = -0.3;
  return {ErrorModel{}, no_error, uniform, negative};
}

class RandomStudyMaker {
 public:
  explicit RandomStudyMaker(unsigned seed) : random_(seed) {}

  RandomStudy Make(const ErrorModel& model, const StudyShape& shape) {
    RandomStudy study;
    study.flow = Draw(0, 1) == 1 ? Flow::kSexed : Flow::kNonSexed;
    const std::uint32_t loci = Draw(1, shape.loci);
    alleles_ = Draw(1, shape.alleles);
    study.table = GenotypeTable(loci);
    study.parents = Draw(1, shape.parents);
    study.males = study.flow == Flow::kSexed ? Draw(0, study.parents) : study.parents;
    AddParents(study, shape.groups && Draw(0, 2) == 0);
    if (shape.undefined_parents && Draw(0, 1) == 0) {
      UndefineParents(study);
    }
    AddOffspring(study, Draw(1, shape.offspring), shape.bred_offspring);
    study.groups =
        FormGroups(study.flow, study.table, {0, study.males}, {study.males, study.parents});
    for (std::uint32_t locus = 0; locus < loci; ++locus) {
      study.loci.emplace_back(locus);
      auto catalogue = AlleleCatalogue::Build(study.table.Locus(LocusIndex{locus})).value();
      catalogue.SortSizes();
      catalogue.ReIndex(study.table.Locus(LocusIndex{locus}));
      study.matrices.push_back(BuildMatrix(model, catalogue.Sizes()));
      study.catalogues.push_back(catalogue);
      if (shape.undefined_parents) {
        AllowUndefinedParents(study, LocusIndex{locus});
      }
    }
    return study;
  }

  std::uint32_t Draw(std::uint32_t low, std::uint32_t high) {
    return std::uniform_int_distribution<std::uint32_t>(low, high)(random_);
  }

 private:
  AlleleSize RandomAllele() { return AlleleSize{100 + 2 * Draw(1, alleles_)}; }

  /// Separators at equal numbers among males and females, at places of their own.
  void AddParents(RandomStudy& study, bool separated) {
    const bool clones = Draw(0, 3) == 0;
    std::vector<bool> is_separator(study.parents);
    const std::uint32_t females = study.parents - study.males;
    if (separated && study.males > 2 && (study.flow == Flow::kNonSexed || females > 2)) {
      is_separator[Draw(0, study.males - 1)] = true;
      if (study.flow == Flow::kSexed) {
        is_separator[study.males + Draw(0, females - 1)] = true;
      }
    }
    for (std::uint32_t i = 0; i < study.parents; ++i) {
      const std::uint32_t number = clones ? Draw(0, 2) : i;
      const Slot slot = study.table.AddIndividual(
          is_separator[i] ? "*" : fmt::format("Sampl{:05}_r{}", number, i % 10));
      for (std::uint32_t locus = 0; !is_separator[i] && locus < study.table.NumberOfLoci();
           ++locus) {
        LocusGenotype& genotype = study.table.Genotype(LocusIndex{locus}, slot);
        genotype.allele1 = RandomAllele();
        genotype.allele2 = RandomAllele();
      }
    }
  }

  void UndefineParents(RandomStudy& study) {
    const std::uint32_t one_in = Draw(2, 20);
    for (std::uint32_t locus = 0; locus < study.table.NumberOfLoci(); ++locus) {
      for (Slot slot{0}; slot < Slot{study.parents}; ++slot) {
        if (Draw(1, one_in) == 1) {
          study.table.Genotype(LocusIndex{locus}, slot) = {};
        }
      }
    }
  }

  static void AllowUndefinedParents(RandomStudy& study, LocusIndex locus) {
    TransmissionMatrix& matrix = study.matrices.back();
    const auto genotypes = study.table.Locus(locus);
    IndexUndefinedParents(genotypes.first(study.parents), matrix.Alleles());
    AddUndefinedAllele(
        ParentFrequencies(genotypes, RangesOfParents(study.flow, study.groups), matrix.Alleles()),
        matrix);
  }

  AlleleSize Inherited(const LocusGenotype& parent) {
    if (parent.IsMissing() || Draw(0, 49) == 0) {
      return RandomAllele();
    }
    return Draw(0, 1) == 0 ? parent.allele1 : parent.allele2;
  }

  void AddOffspring(RandomStudy& study, std::uint32_t count, bool bred) {
    for (std::uint32_t i = 0; i < count; ++i) {
      const Slot slot = study.table.AddIndividual(fmt::format("K{}", i));
      const std::uint32_t missing = Draw(0, 9) == 0 ? 0 : Draw(3, 12);
      const bool is_bred = bred && Draw(0, 3) != 0;
      const Slot mother{Draw(0, study.parents - 1)};
      const Slot father{Draw(0, study.parents - 1)};
      for (std::uint32_t l = 0; l < study.table.NumberOfLoci(); ++l) {
        const LocusIndex locus{l};
        if (Draw(0, missing) == 0) {
          continue;
        }
        LocusGenotype& genotype = study.table.Genotype(locus, slot);
        genotype.allele1 =
            is_bred ? Inherited(study.table.Genotype(locus, mother)) : RandomAllele();
        genotype.allele2 =
            is_bred ? Inherited(study.table.Genotype(locus, father)) : RandomAllele();
      }
    }
  }

  std::mt19937 random_;
  std::uint32_t alleles_ = 1;
};

}  // namespace kaldo::test

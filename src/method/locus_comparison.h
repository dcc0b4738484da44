// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "genotypes/genotype_table.h"
#include "genotypes/units.h"

namespace kaldo {

/// How an offspring's two alleles at a locus, R (the first) and J (the second), are found in a pair
/// of parents by exact size. RR stands for a homozygous offspring, RJ for a heterozygous one. The
/// labels of the reports are French abbreviations: "aucun" none, "seul" alone, "un a chacun" one to
/// each. The labels of a released version stay as they are. The sorting into twelve is this
/// program's; under Mendel's first law only kComplete needs no error.
enum class LocusCondition {
  kError = 0,        ///< not classified; never the result of a comparison
  kNone = 1,         ///< neither parent carries R or J (also: the offspring's locus is missing)
  kComplete = 2,     ///< one parent carries R and the other J
  kOneToEach = 3,    ///< RJ: both parents carry the same one of the two alleles, nobody the other
  kRrOnlyPar1 = 4,   ///< RR: only parent 1 carries R
  kRrOnlyPar2 = 5,   ///< RR: only parent 2 carries R
  kRInPar1 = 6,      ///< RJ: R is found in parent 1 only, J nowhere
  kRInPar2 = 7,      ///< RJ: R is found in parent 2 only, J nowhere
  kJInPar1 = 8,      ///< RJ: J is found in parent 1 only, R nowhere
  kJInPar2 = 9,      ///< RJ: J is found in parent 2 only, R nowhere
  kBothInPar1 = 10,  ///< RJ: parent 1 carries R and J, parent 2 neither
  kBothInPar2 = 11,  ///< RJ: parent 2 carries R and J, parent 1 neither
};

/// The label of a condition in the reports, for instance "cond_complet".
std::string_view Label(LocusCondition condition);

/// Which offspring alleles a parent must be measured against: those that no parent explains yet.
enum class Unexplained { kNothing, kR, kJ, kEither };

/// What a condition leaves to be explained by each parent. A parent that explains an allele of the
/// offspring has nothing left. The other one is measured against the allele that nobody explains
/// or, where its partner explains both, against the nearer of them.
struct Measured {
  Unexplained par1 = Unexplained::kNothing;
  Unexplained par2 = Unexplained::kNothing;
};

/// The table of docs/method.md, "Offsets and tolerance".
Measured MeasuredUnder(LocusCondition condition);

struct LocusComparison;

/// The same where a parent may be undefined, at a locus that is typed in the offspring: nothing is
/// asked of that parent, and its partner is measured against the nearer allele.
Measured MeasuredAt(const LocusComparison& locus);

/// One locus of an offspring against the same locus of two parents: all that the reports tell of
/// it. R is the first allele of the offspring as it stands in the file, J the second.
struct LocusComparison {
  LocusGenotype offspring;
  LocusGenotype par1;
  LocusGenotype par2;
  BasePairs unit_distance;  ///< of the locus; not positive when it has a single size

  // The offspring allele equals either allele of that parent.
  bool R_in_par1 = false;
  bool J_in_par1 = false;
  bool R_in_par2 = false;
  bool J_in_par2 = false;
  bool homozygous = false;

  LocusCondition condition = LocusCondition::kError;

  /// By how many base pairs each parent's nearest allele misses what it should have transmitted.
  BasePairs distance_par1;
  BasePairs distance_par2;

  /// The same in whole unit distances, the remainder dropped: 3 bp at a dinucleotide locus are 1.
  UnitDistances offset_par1;
  UnitDistances offset_par2;
};

/// Classifies one locus and measures both parents. A locus missing in the offspring says nothing
/// about the parents: condition "none", offsets 0. Under condition 3 both offsets are 0 although
/// one allele comes from nowhere; the likelihood of the pair, not the offsets, speaks against it.
/// A locus undefined in a parent carries no allele of the offspring, see MeasuredAt. At a locus
/// with a single size, whose unit distance is not positive, offsets are 0.
LocusComparison ClassifyLocus(const LocusGenotype& offspring, const LocusGenotype& par1,
                              const LocusGenotype& par2, BasePairs unit_distance);

/// |a - b| in base pairs. An undefined allele has the size 0.
BasePairs Distance(AlleleSize a, AlleleSize b);

}  // namespace kaldo

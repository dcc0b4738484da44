// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "genotypes/capacities.h"
#include "genotypes/units.h"

namespace kaldo {

/// One locus of one individual: the two allele sizes in the order in which they were typed, and
/// their places in the catalogue of the locus once it has been indexed.
struct LocusGenotype {
  AlleleSize allele1;
  AlleleSize allele2;
  AlleleIndex index1;
  AlleleIndex index2;

  constexpr bool IsMissing() const {
    return allele1 == kUndefinedAllele && allele2 == kUndefinedAllele;
  }
};

/// The name of an individual: at most 15 bytes, filled up with zero bytes. A longer text is cut.
class IndividualName {
 public:
  IndividualName() = default;
  explicit IndividualName(std::string_view text);

  std::string_view Text() const;

  /// True where both names start with the same ten bytes: then they are taken for one individual.
  bool SameKeyAs(const IndividualName& other) const;

 private:
  std::array<char, kMaxNameLength> bytes_{};
};

/// The individuals of a run with one genotype per locus. A non-sexed allocation holds the collected
/// parents first and the offspring behind them, a sexed one males, females, offspring. A separator
/// of a parents file takes a slot like an individual; all its loci are missing.
///
/// Genotypes are stored locus by locus, since every computation walks over the individuals of one
/// locus. 50,000 individuals by 50 loci take 30 MB.
class GenotypeTable {
 public:
  GenotypeTable() = default;
  explicit GenotypeTable(std::size_t number_of_loci) : loci_(number_of_loci) {}

  std::size_t NumberOfIndividuals() const { return names_.size(); }
  std::size_t NumberOfLoci() const { return loci_.size(); }

  /// Appends an individual whose every locus is missing, and tells its slot.
  Slot AddIndividual(std::string_view name);

  const IndividualName& Name(Slot slot) const { return names_[slot.Value()]; }
  std::span<const IndividualName> Names() const { return names_; }

  LocusGenotype& Genotype(LocusIndex locus, Slot slot) {
    return loci_[locus.Value()][slot.Value()];
  }
  const LocusGenotype& Genotype(LocusIndex locus, Slot slot) const {
    return loci_[locus.Value()][slot.Value()];
  }

  /// The genotypes of all individuals at one locus, in slot order.
  std::span<LocusGenotype> Locus(LocusIndex locus) { return loci_[locus.Value()]; }
  std::span<const LocusGenotype> Locus(LocusIndex locus) const { return loci_[locus.Value()]; }

  /// At how many of these loci an individual is typed.
  std::size_t NumberOfTyped(std::span<const LocusIndex> loci, Slot slot) const;

 private:
  std::vector<IndividualName> names_;
  std::vector<std::vector<LocusGenotype>> loci_;
};

}  // namespace kaldo

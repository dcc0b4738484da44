// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "genotypes/genotype_table.h"
#include "method/transmission_matrix.h"

namespace kaldo {

/// The likelihood of single pairs, straight from genotypes and matrices. Quicker than anything
/// that has to be prepared for an offspring, where hardly any pair is worth a look.
class DirectLikelihood {
 public:
  /// For the arguments see PossibleParents.
  void Prepare(const GenotypeTable& table, std::size_t parents, std::span<const LocusIndex> loci,
               std::span<const TransmissionMatrix> matrices);

  /// The likelihood of a pair at the loci of the run at which the offspring is typed, from the same
  /// expressions in the same order as in the plain scan.
  double Of(Slot offspring, std::span<const std::uint32_t> typed_loci, Slot parent1,
            Slot parent2) const;

 private:
  struct Alleles {
    std::uint8_t first = 0;
    std::uint8_t second = 0;
  };
  struct Locus {
    std::span<const LocusGenotype> genotypes;
    const TransmissionMatrix* matrix = nullptr;
  };

  std::vector<Locus> loci_;
  std::vector<Alleles> of_parents_;  ///< by slot and locus of the run
};

}  // namespace kaldo

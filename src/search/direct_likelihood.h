// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "method/kept_pairs.h"
#include "search/search_study.h"

namespace kaldo {

/// The likelihood of single pairs, straight from genotypes and matrices. Quicker than anything
/// that has to be prepared for an offspring, where hardly any pair is worth a look.
class DirectLikelihood {
 public:
  void Prepare(const SearchStudy& study);

  /// The likelihood of a pair at the loci at which the offspring is typed, given by their places in
  /// the run. From the same expressions in the same order as in the plain scan.
  double Likelihood(Slot offspring, std::span<const std::uint32_t> typed_loci,
                    ParentPair pair) const;

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

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "genotypes/capacities.h"
#include "search/cost_kernels.h"
#include "search/search_study.h"

namespace kaldo {

/// Which collected parents can have given one of its two alleles to an offspring at every locus.
/// All others have no likelihood with any partner.
///
/// Parents that can have given an allele, under the model of error, are kept as one row of bits per
/// locus and allele: few enough rows to stay in the nearest cache.
class PossibleParents {
 public:
  void Prepare(const SearchStudy& study);

  /// Goes over to an offspring. False when fewer than two parents are left: then no pair has any
  /// likelihood, and nothing else here may be asked.
  bool Find(Slot offspring);

  /// Keeps of the parents found only these candidates. False when fewer than two are left.
  bool KeepAmong(std::span<const Slot> candidates);

  /// The loci of the run at which the offspring is typed, by their place in the run.
  std::span<const std::uint32_t> TypedLoci() const { return std::span(typed_).first(typed_count_); }

  /// Whether some parent may not be possible.
  bool SomeImpossible() const { return left_ != all_.data(); }

  /// Bit by slot: the parent is possible.
  std::span<const std::uint64_t> Bits() const { return {left_, all_.size()}; }

 private:
  struct Locus {
    std::span<const LocusGenotype> genotypes;
    std::size_t first_row = 0;  ///< row of the first allele
    bool all_give_any = true;   ///< every parent can have given every allele
  };
  // The parents left are compared with the givers at this many loci at once.
  static constexpr std::size_t kLociAtOnce = 3;

  void AddLocus(std::span<const LocusGenotype> parents, const TransmissionMatrix& matrix);
  bool KeepGivers(std::size_t loci);

  std::size_t individuals_ = 0;
  std::vector<Locus> loci_;
  std::vector<std::uint64_t> carriers_;  ///< by allele and block, of the locus at hand
  std::vector<std::uint64_t> givers_;    ///< by locus, allele and block of slots
  std::vector<std::uint64_t> all_;
  std::vector<std::uint64_t> some_;
  std::vector<std::uint64_t> candidates_;

  // Of the current offspring:
  std::array<std::uint32_t, kMaxLoci> typed_{};
  std::size_t typed_count_ = 0;
  std::array<GiverRows, kLociAtOnce> rows_{};
  const std::uint64_t* left_ = nullptr;  ///< all_, some_ or candidates_
};

}  // namespace kaldo

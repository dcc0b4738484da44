// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "genotypes/genotype_table.h"
#include "genotypes/loci_list.h"
#include "runs/value_kinds.h"

namespace kaldo {

// Real offspring are not typed at every locus, and what is not typed cannot tell their parents.

/// The share of individuals in a genotype file that are undefined at each locus of the list, all of
/// which must be in use. The file must have passed the checks of records and hold somebody.
std::vector<double> UndefinedShares(const TokenFile& file, const LociList& loci);

/// Tells which loci of the pseudo-offspring of an iteration are undefined: each with the chance of
/// its locus, independently. The numbers are those of a counter, not of the stream: the same seed
/// makes the same parents and pseudo-offspring with and without undefined loci, and with any choice
/// of loci.
class UndefinedLoci {
 public:
  /// `shares` by locus of the list, none where every locus is typed; they must outlive it. `state`
  /// is where the iteration starts in the stream.
  UndefinedLoci(std::span<const double> shares, std::uint64_t state);

  /// Whether the pseudo-offspring, counted from 0 in the iteration, is undefined at the locus.
  bool AreUndefined(std::uint32_t offspring, LocusIndex locus) const;

 private:
  std::span<const double> shares_;
  std::uint64_t key_;
};

/// What undefined alleles of a representative sample count for.
enum class UndefinedInSample {
  kCount,   ///< for the first allele of the locus, see AlleleCatalogue
  kIgnore,  ///< for nothing: frequencies are those of the typed genes
};

inline constexpr std::array<NamedChoice<UndefinedInSample>, 2> kUndefinedInSample{
    {{UndefinedInSample::kCount, "count"}, {UndefinedInSample::kIgnore, "ignore"}}};

}  // namespace kaldo

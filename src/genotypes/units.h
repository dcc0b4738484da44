// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/strong_number.h"

namespace kaldo {

/// The size of a microsatellite allele, in base pairs.
using AlleleSize = StrongNumber<struct AlleleSizeTag, std::uint32_t>;

/// "Not typed": the size of an allele written with zeros only.
inline constexpr AlleleSize kUndefinedAllele{0};

/// The place of an allele in the catalogue of its locus, 0 to 99. It is also the row (parent) or
/// the column (offspring) of that allele in the transmission matrix of the locus.
using AlleleIndex = StrongNumber<struct AlleleIndexTag, std::uint8_t>;

/// The place of a locus in the names-of-loci file, counted from 0.
using LocusIndex = StrongNumber<struct LocusIndexTag, std::uint32_t>;

/// The place of an individual in a GenotypeTable, counted from 0; separators take a slot too.
using Slot = StrongNumber<struct SlotTag, std::uint32_t>;

/// A difference between two allele sizes, in base pairs.
using BasePairs = StrongNumber<struct BasePairsTag, std::int32_t>;

/// A difference between two allele sizes, in whole unit distances of the locus (one repeat of a
/// dinucleotide locus is one unit distance of 2 bp).
using UnitDistances = StrongNumber<struct UnitDistancesTag, std::int32_t>;

/// The slots from `begin` up to, not including, `end`: the individuals of one file, or of one group
/// of parents. `begin` and `end` are values of slots.
struct SlotRange {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;

  /// Individuals in it, separators included.
  constexpr std::size_t Size() const { return end - begin; }

  constexpr bool Holds(Slot slot) const { return begin <= slot.Value() && slot.Value() < end; }

  friend constexpr bool operator==(SlotRange, SlotRange) = default;
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/identical_parents.h"

#include <algorithm>
#include <compare>
#include <utility>

namespace kaldo {

namespace {

std::pair<AlleleSize, AlleleSize> Sorted(const LocusGenotype& genotype) {
  return std::minmax(genotype.allele1, genotype.allele2);
}

std::strong_ordering CompareGenotypes(const GenotypeTable& table, std::span<const LocusIndex> loci,
                                      Slot a, Slot b) {
  for (const LocusIndex locus : loci) {
    const auto one = Sorted(table.Genotype(locus, a));
    const auto other = Sorted(table.Genotype(locus, b));
    if (one != other) {
      return one < other ? std::strong_ordering::less : std::strong_ordering::greater;
    }
  }
  return std::strong_ordering::equal;
}

}  // namespace

IdenticalParents::IdenticalParents(const GenotypeTable& table, std::span<const LocusIndex> loci,
                                   std::span<const SlotRange> ranges) {
  std::uint32_t slots = 0;
  for (const SlotRange range : ranges) {
    for (std::uint32_t slot = range.begin; slot < range.end; ++slot) {
      sorted_.emplace_back(slot);
    }
    slots = std::max(slots, range.end);
  }
  std::stable_sort(sorted_.begin(), sorted_.end(),
                   [&](Slot a, Slot b) { return CompareGenotypes(table, loci, a, b) < 0; });
  stretches_.resize(slots);
  for (std::uint32_t begin = 0; begin < sorted_.size();) {
    std::uint32_t end = begin + 1;
    while (end < sorted_.size() &&
           CompareGenotypes(table, loci, sorted_[begin], sorted_[end]) == 0) {
      ++end;
    }
    for (std::uint32_t i = begin; i < end; ++i) {
      stretches_[sorted_[i].Value()] = {begin, end - begin};
    }
    begin = end;
  }
}

}  // namespace kaldo

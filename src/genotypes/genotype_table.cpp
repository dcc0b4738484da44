// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/genotype_table.h"

#include <algorithm>

namespace kaldo {

IndividualName::IndividualName(std::string_view text) {
  std::copy_n(text.begin(), std::min(text.size(), bytes_.size()), bytes_.begin());
}

std::string_view IndividualName::Text() const {
  const std::string_view bytes(bytes_.data(), bytes_.size());
  return bytes.substr(0, bytes.find('\0'));
}

bool IndividualName::SameKeyAs(const IndividualName& other) const {
  return std::equal(bytes_.begin(), bytes_.begin() + kNameKeyLength, other.bytes_.begin());
}

Slot GenotypeTable::AddIndividual(std::string_view name) {
  const Slot slot{static_cast<std::uint32_t>(names_.size())};
  names_.emplace_back(name);
  for (auto& genotypes : loci_) {
    genotypes.emplace_back();
  }
  return slot;
}

std::size_t GenotypeTable::NumberOfTyped(std::span<const LocusIndex> loci, Slot slot) const {
  return static_cast<std::size_t>(std::count_if(loci.begin(), loci.end(), [&](LocusIndex locus) {
    return !Genotype(locus, slot).IsMissing();
  }));
}

}  // namespace kaldo

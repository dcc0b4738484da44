// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/allele_catalogue.h"

#include <algorithm>
#include <cassert>

namespace kaldo {

namespace {

/// The place of each size seen so far, by size. Simulations come here at every iteration and locus:
/// the table stays on the stack.
class PlaceOfSize {
 public:
  static constexpr std::uint8_t kUnlisted = kMaxAlleles;

  PlaceOfSize() { places_.fill(kUnlisted); }

  std::uint8_t& operator[](AlleleSize size) { return places_.at(size.Value()); }

 private:
  std::array<std::uint8_t, kLargestAlleleSize + 1> places_{};
};

}  // namespace

tl::expected<AlleleCatalogue, Slot> AlleleCatalogue::Build(
    std::span<const LocusGenotype> genotypes) {
  AlleleCatalogue catalogue;
  PlaceOfSize place_of;
  for (const auto allele : {&LocusGenotype::allele1, &LocusGenotype::allele2}) {
    for (std::size_t slot = 0; slot < genotypes.size(); ++slot) {
      const AlleleSize size = genotypes[slot].*allele;
      if (size == kUndefinedAllele) {
        ++catalogue.counts_[0];
        continue;
      }
      std::uint8_t& place = place_of[size];
      if (place == PlaceOfSize::kUnlisted) {
        if (catalogue.distinct_ == kMaxAlleles) {
          return tl::unexpected(Slot{static_cast<std::uint32_t>(slot)});
        }
        place = static_cast<std::uint8_t>(catalogue.distinct_);
        catalogue.sizes_[catalogue.distinct_] = size;
        ++catalogue.distinct_;
      }
      ++catalogue.counts_[place];
    }
  }
  return catalogue;
}

void AlleleCatalogue::SortSizes() {
  std::sort(sizes_.begin(), sizes_.begin() + static_cast<std::ptrdiff_t>(distinct_));
}

std::optional<AlleleIndex> AlleleCatalogue::LookUp(AlleleSize size) const {
  if (size == kUndefinedAllele) {
    return AlleleIndex{0};
  }
  const auto listed = Sizes();
  const auto found = std::find(listed.begin(), listed.end(), size);
  if (found == listed.end()) {
    return std::nullopt;
  }
  return AlleleIndex{static_cast<std::uint8_t>(found - listed.begin())};
}

void AlleleCatalogue::ReIndex(std::span<LocusGenotype> genotypes) const {
  PlaceOfSize place_of;
  place_of[kUndefinedAllele] = 0;
  for (std::size_t place = 0; place < distinct_; ++place) {
    place_of[sizes_[place]] = static_cast<std::uint8_t>(place);
  }
  for (LocusGenotype& genotype : genotypes) {
    const std::uint8_t place1 = place_of[genotype.allele1];
    const std::uint8_t place2 = place_of[genotype.allele2];
    assert(place1 < kMaxAlleles && place2 < kMaxAlleles && "every allele must be listed");
    genotype.index1 = AlleleIndex{place1};
    genotype.index2 = AlleleIndex{place2};
  }
}

}  // namespace kaldo

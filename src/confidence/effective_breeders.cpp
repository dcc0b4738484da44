// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/effective_breeders.h"

#include <cstdint>
#include <map>

#include <fmt/format.h>

namespace kaldo {

EffectiveBreeders EffectiveBreedersOf(std::span<const NamedParents> offspring) {
  EffectiveBreeders breeders;
  breeders.sides = 2 * offspring.size();
  std::map<std::uint32_t, std::size_t> sides_of_parent;
  for (const NamedParents& parents : offspring) {
    for (const auto& parent : parents) {
      if (parent) {
        ++breeders.named;
        ++sides_of_parent[parent->Value()];
      }
    }
  }
  breeders.is_enough_named =
      breeders.named > 0 &&
      static_cast<double>(breeders.named) >= kLeastShareNamed * static_cast<double>(breeders.sides);
  double same_parent = 0;
  for (const auto& [parent, sides] : sides_of_parent) {
    same_parent += static_cast<double>(sides) * static_cast<double>(sides - 1);
  }
  if (breeders.is_enough_named && same_parent > 0) {
    const auto n = static_cast<double>(breeders.named);
    breeders.number = n * (n - 1) / same_parent;
  }
  return breeders;
}

std::string BreedersSentence(const EffectiveBreeders& breeders) {
  const std::string sides = fmt::format("{} of {} sides", breeders.named, breeders.sides);
  if (!breeders.is_enough_named) {
    return fmt::format(
        "Effective number of breeders: withheld, because only {} are named; it "
        "takes {:g} %.",
        sides, 100 * kLeastShareNamed);
  }
  if (!breeders.number) {
    return "Effective number of breeders: none, because no parent is named for two offspring.";
  }
  return fmt::format(
      "Effective number of breeders: {:.1f} (Waples and Waples 2011), from the {} "
      "that are named; {} left out.",
      *breeders.number, sides, breeders.sides - breeders.named);
}

}  // namespace kaldo

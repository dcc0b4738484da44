// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/parent_classes.h"

#include <algorithm>

namespace kaldo {

namespace {

constexpr std::uint16_t kNoClass = 0xffff;

}  // namespace

void ParentClasses::Sort(std::span<const LocusGenotype> parents, std::size_t alleles) {
  first_.clear();
  of_parents_.resize(parents.size());
  number_of_pair_.assign(alleles * alleles, kNoClass);
  for (std::size_t slot = 0; slot < parents.size(); ++slot) {
    const LocusGenotype& genotype = parents[slot];
    const std::size_t smaller = std::min(genotype.index1, genotype.index2).Value();
    const std::size_t larger = std::max(genotype.index1, genotype.index2).Value();
    std::uint16_t& number = number_of_pair_[smaller * alleles + larger];
    if (number == kNoClass) {
      number = static_cast<std::uint16_t>(first_.size());
      first_.push_back(genotype);
    }
    of_parents_[slot] = number;
  }
}

}  // namespace kaldo

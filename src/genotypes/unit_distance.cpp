// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/unit_distance.h"

#include <algorithm>

#include <fmt/format.h>

namespace kaldo {

namespace {

std::int32_t Difference(AlleleSize larger, AlleleSize smaller) {
  return static_cast<std::int32_t>(larger.Value()) - static_cast<std::int32_t>(smaller.Value());
}

}  // namespace

std::vector<BasePairs> AllelicDistances(std::span<const AlleleSize> sorted_sizes) {
  std::vector<BasePairs> distances;
  for (std::size_t k = 1; k < sorted_sizes.size(); ++k) {
    distances.emplace_back(Difference(sorted_sizes[k], sorted_sizes[k - 1]));
  }
  return distances;
}

BasePairs UnitDistance(std::span<const AlleleSize> sorted_sizes) {
  if (sorted_sizes.empty()) {
    return BasePairs{0};
  }
  if (sorted_sizes.size() == 1) {
    return BasePairs{Difference(kUndefinedAllele, sorted_sizes[0])};
  }
  // Simulations come here at every iteration and locus: no list of distances is made.
  std::int32_t smallest = Difference(sorted_sizes[1], sorted_sizes[0]);
  for (std::size_t k = 2; k < sorted_sizes.size(); ++k) {
    smallest = std::min(smallest, Difference(sorted_sizes[k], sorted_sizes[k - 1]));
  }
  return BasePairs{smallest};
}

std::string UnitDistanceNote(BasePairs unit_distance) {
  switch (unit_distance.Value()) {
    case 2:
      return "(Unit distance = 2    <=>  Di)";
    case 3:
      return "(Unit distance = 3    <=>  Tri)";
    case 4:
      return "(Unit distance = 4    <=>  Tetra)";
    default:
      return fmt::format("(Unit distance = {} )", unit_distance.Value());
  }
}

}  // namespace kaldo

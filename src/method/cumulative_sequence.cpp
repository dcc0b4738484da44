// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/cumulative_sequence.h"

#include <algorithm>
#include <numeric>

#include <fmt/format.h>

namespace kaldo {

std::vector<std::int32_t> FileOrderSequence(std::size_t number_of_loci) {
  std::vector<std::int32_t> indices(number_of_loci);
  std::iota(indices.begin(), indices.end(), 1);
  return indices;
}

std::optional<Problem> CheckSequence(std::span<const std::int32_t> indices,
                                     std::size_t number_of_loci) {
  const auto n = static_cast<std::int64_t>(number_of_loci);
  if (const auto zero = std::find(indices.begin(), indices.end(), 0); zero != indices.end()) {
    return Problem{.kind = ProblemKind::kSequenceHasZero,
                   .found = fmt::format("index {} is 0", zero - indices.begin() + 1)};
  }
  const auto too_large =
      std::find_if(indices.begin(), indices.end(), [n](std::int32_t index) { return index > n; });
  if (too_large != indices.end()) {
    return Problem{.kind = ProblemKind::kSequenceIndexTooLarge,
                   .found = fmt::format("index {} is {}, there are {} loci",
                                        too_large - indices.begin() + 1, *too_large, n)};
  }
  const std::int64_t sum = std::accumulate(indices.begin(), indices.end(), std::int64_t{0});
  if (indices.size() != number_of_loci || sum != n * (n + 1) / 2) {
    return Problem{
        .kind = ProblemKind::kSequenceSum,
        .found = fmt::format("{} indices sum to {}; {} loci need {} indices with the sum {}",
                             indices.size(), sum, n, n, n * (n + 1) / 2)};
  }
  return std::nullopt;
}

std::vector<LocusIndex> OrderOfEntry(std::span<const LocusIndex> loci_in_use,
                                     std::span<const std::int32_t> indices) {
  std::vector<LocusIndex> order(loci_in_use.begin(), loci_in_use.end());
  std::stable_sort(order.begin(), order.end(), [indices](LocusIndex a, LocusIndex b) {
    return indices[a.Value()] < indices[b.Value()];
  });
  return order;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/figures/subset_ranking.h"

#include <algorithm>
#include <numeric>

namespace kaldo {

std::vector<std::size_t> RankSubsets(std::span<const SubsetFigures> subsets) {
  std::vector<std::size_t> places(subsets.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::stable_sort(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
    const double any_a = subsets[a].probabilities.any;
    const double any_b = subsets[b].probabilities.any;
    return any_a != any_b ? any_a > any_b : subsets[a].loci.size() < subsets[b].loci.size();
  });
  return places;
}

std::map<std::size_t, std::size_t> BestSubsets(std::span<const SubsetFigures> subsets) {
  std::map<std::size_t, std::size_t> best;
  for (const std::size_t place : RankSubsets(subsets)) {
    best.try_emplace(subsets[place].loci.size(), place);
  }
  return best;
}

}  // namespace kaldo

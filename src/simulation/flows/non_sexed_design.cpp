// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/flows/simulation_design.h"

namespace kaldo {

namespace {

// The parental groups by their place in the parent table.
constexpr std::size_t kCollected = 0;
constexpr std::size_t kUncollected = 1;

OriginClass Class(bool first_uncollected, bool second_uncollected) {
  return MakeOriginClass(Flow::kNonSexed, first_uncollected ? kUncollected : kCollected,
                         first_uncollected, second_uncollected ? kUncollected : kCollected,
                         second_uncollected);
}

}  // namespace

SimulationDesign NonSexedDesign() {
  return {.flow = Flow::kNonSexed,
          .groups = {{.set = 0, .collected = true}, {.set = 0, .collected = false}},
          .candidate_groups = {kCollected, kCollected},
          .fewest_pseudo_collected = 2,  // offspring of two collected parents need two of them
          .classes = {Class(false, false), Class(false, true), Class(true, true)},
          .averages_before_weighing = false,
          .global_rows = GlobalRows::kWeighted,
          .frequency_spread = SpreadKind::kDifferences,
          .table_spread = SpreadKind::kDifferences,
          .table = {.columns = 5, .ratios = 3, .assigned_columns = 3, .classes_have_ratios = true},
          .tells_first_pairs = true,
          .sides_per_set = 2};
}

}  // namespace kaldo

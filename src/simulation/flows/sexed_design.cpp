// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/flows/simulation_design.h"

namespace kaldo {

namespace {

// The parental groups by their place in the parent table.
constexpr std::size_t kCollectedMales = 0;
constexpr std::size_t kCollectedFemales = 1;
constexpr std::size_t kUncollectedMales = 2;
constexpr std::size_t kUncollectedFemales = 3;

OriginClass Class(bool male_uncollected, bool female_uncollected) {
  return MakeOriginClass(
      Flow::kSexed, male_uncollected ? kUncollectedMales : kCollectedMales, male_uncollected,
      female_uncollected ? kUncollectedFemales : kCollectedFemales, female_uncollected);
}

}  // namespace

SimulationDesign SexedDesign() {
  return {
      .flow = Flow::kSexed,
      .groups = {{.set = 0, .collected = true},
                 {.set = 1, .collected = true},
                 {.set = 0, .collected = false},
                 {.set = 1, .collected = false}},
      .candidate_groups = {kCollectedMales, kCollectedFemales},
      .fewest_pseudo_collected = 1,
      .classes = {Class(false, false), Class(false, true), Class(true, false), Class(true, true)},
      .averages_before_weighing = true,
      .global_rows = GlobalRows::kPooled,
      .frequency_spread = SpreadKind::kSteps,
      .table_spread = SpreadKind::kSquares,
      .table = {.columns = 8, .ratios = 6, .assigned_columns = 2, .classes_have_ratios = false},
      .tells_first_pairs = false,
      .sides_per_set = 1};
}

}  // namespace kaldo

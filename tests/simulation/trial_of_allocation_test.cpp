// SPDX-License-Identifier: GPL-3.0-or-later
// The simulation that a finished allocation asks for.
#include "simulation/trial_of_allocation.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

/// A finished allocation of so many parents, with shares as told.
struct Finished {
  AllocationSettings settings;
  AllocationInput input;
  AllocationResult result;

  Finished(Flow flow, std::uint32_t first, std::uint32_t second) {
    settings.flow = flow;
    settings.project = "lake";
    input.first_parents = {0, first};
    input.second_parents = {first, first + second};
    input.offspring = {first + second, first + second + 30};
    input.groups = {{input.first_parents, input.second_parents}};
    result.confidence.emplace();
  }
};

TEST(TrialOf, TakesAsManyUncollectedParentsAsTheSharesSay) {
  // 16 males, of whom 0.5 + 0.3 were collected: 4 others. 12 females, 0.5 + 0.1: 8 others.
  Finished sexed(Flow::kSexed, 16, 12);
  ByExplanation<double> theta;
  theta[Explanation::kBoth] = 0.5;
  theta[Explanation::kFirst] = 0.3;
  theta[Explanation::kSecond] = 0.1;
  theta[Explanation::kNone] = 0.1;
  sexed.result.confidence->shares.collected_by_side = CollectedBySide(theta);
  const auto found = TrialOf(sexed.settings, sexed.input, sexed.result).value();
  const SimulationSettings& trial = found.settings;
  EXPECT_EQ(found.note, "");
  EXPECT_EQ(trial.sets[0].uncollected, 4);
  EXPECT_EQ(trial.sets[1].uncollected, 8);
  EXPECT_EQ(trial.sets[1].estimated_collected, 12);
  EXPECT_EQ(trial.sets[1].estimated_uncollected, 8);
  EXPECT_EQ(trial.offspring_per_iteration, 30);
}

TEST(TrialOf, DrawsNoMoreThanASimulationTakes) {
  // 20,000 males of 0.25 and 10,000 females of 0.5: 60,000 and 10,000 others; 20,000 have room.
  Finished large(Flow::kSexed, 20'000, 10'000);
  large.result.confidence->shares.collected_by_side = {0.25, 0.5};
  const auto trial = TrialOf(large.settings, large.input, large.result).value();
  EXPECT_EQ(trial.settings.sets[0].uncollected, 17'142);
  EXPECT_EQ(trial.settings.sets[1].uncollected, 2'857);
  EXPECT_EQ(trial.settings.sets[0].estimated_uncollected, 60'000);
  EXPECT_NE(trial.note.find("70000 parents were not collected"), std::string::npos) << trial.note;
  EXPECT_NE(trial.note.find("19999 are drawn"), std::string::npos) << trial.note;
}

TEST(TrialOf, SaysWhyThereIsNone) {
  Finished finished(Flow::kSexed, 4, 4);
  finished.input.groups.push_back(finished.input.groups.front());
  EXPECT_FALSE(TrialOf(finished.settings, finished.input, finished.result));
  finished.input.groups.pop_back();
  EXPECT_TRUE(TrialOf(finished.settings, finished.input, finished.result));
  finished.result.confidence.reset();
  EXPECT_FALSE(TrialOf(finished.settings, finished.input, finished.result));
}

}  // namespace
}  // namespace kaldo

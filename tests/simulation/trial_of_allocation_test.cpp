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
  auto& theta = sexed.result.confidence->shares.theta;
  theta[Explanation::kBoth] = 0.5;
  theta[Explanation::kFirst] = 0.3;
  theta[Explanation::kSecond] = 0.1;
  theta[Explanation::kNone] = 0.1;
  const auto trial = TrialOf(sexed.settings, sexed.input, sexed.result).value();
  EXPECT_EQ(trial.sets[0].uncollected, 4);
  EXPECT_EQ(trial.sets[1].uncollected, 8);
  EXPECT_EQ(trial.sets[1].estimated_collected, 12);
  EXPECT_EQ(trial.sets[1].estimated_uncollected, 8);
  EXPECT_EQ(trial.offspring_per_iteration, 30);
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

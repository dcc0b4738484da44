// SPDX-License-Identifier: GPL-3.0-or-later
// Class sizes where a product of doubles falls just below a whole number: the order of the formula
// decides, which random settings hardly ever meet.
#include "simulation/figures/class_sizes.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

TEST(ClassSizes, FollowTheOrderOfTheFormulas) {
  SimulationSettings settings;
  settings.offspring_per_iteration = 25;
  settings.sets[0].uncollected = 1;
  // q is 1/5. With 1 - p in its place it would be 7 and 0.
  EXPECT_EQ(ClassSizes(settings, std::vector<double>{4}), (std::vector<std::int32_t>{16, 8, 1}));

  settings.flow = Flow::kSexed;
  settings.offspring_per_iteration = 110;
  settings.sets[0].estimated_collected = 3;
  settings.sets[0].estimated_uncollected = 8;
  settings.sets[1].estimated_collected = 3;
  settings.sets[1].estimated_uncollected = 7;
  // Without rounding 9, 21, 24 and 56; with the number wanted first 8, 20, 24 and 56.
  EXPECT_EQ(ClassSizes(settings, {}), (std::vector<std::int32_t>{9, 21, 24, 55}));
}

}  // namespace
}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
// What the options of `kaldo simulate` stand for.
#include "cli/simulation_options.h"

#include <gtest/gtest.h>

#include "cli/option_text.h"

namespace kaldo {
namespace {

SimulationOptions NonSexedOptions() {
  SimulationOptions options;
  options.parents.collected = "parents";
  options.parents.uncollected_sample = "sample";
  options.parents.uncollected = "10.5";
  options.iterations = "20";
  options.offspring_per_iteration = "0300";
  return options;
}

SimulationOptions SexedOptions() {
  SimulationOptions options = NonSexedOptions();
  options.sexed = true;
  options.parents = {};
  options.males = {{}, "male sample", "4", "wild males", "5", "6.5", "7"};
  options.females = {{}, "female sample", "8", "wild females", "9", "1e1", "0"};
  return options;
}

TEST(SimulationOptions, StandForTheSettingsOfTheirFlowAndProcedure) {
  const auto settings = SettingsFrom(NonSexedOptions());
  ASSERT_TRUE(settings) << SentenceOf(settings.error());
  EXPECT_EQ(settings->procedure, Procedure::kParental);
  EXPECT_EQ(settings->sets[0].uncollected, 10.5);
  EXPECT_EQ(settings->offspring_per_iteration, 300) << "leading zeros mean nothing";
  EXPECT_FALSE(settings->seed) << "the clock";
  EXPECT_FALSE(settings->keep) << "as the flow has it";

  const auto sexed = SettingsFrom(SexedOptions());
  ASSERT_TRUE(sexed) << SentenceOf(sexed.error());
  EXPECT_EQ(sexed->flow, Flow::kSexed);
  EXPECT_EQ(sexed->procedure, Procedure::kPreParental);
  std::vector<double> numbers;
  for (const ParentalSet& set : sexed->Sets()) {
    for (const double number : {static_cast<double>(set.pseudo_collected), set.uncollected,
                                set.estimated_collected, set.estimated_uncollected}) {
      numbers.push_back(number);
    }
  }
  EXPECT_EQ(numbers, (std::vector<double>{4, 5, 6.5, 7, 8, 9, 10, 0}));
  EXPECT_EQ(sexed->sets[1].pseudo_collected_sample, "female sample");
  EXPECT_EQ(sexed->sets[1].uncollected_sample, "wild females");
}

TEST(SimulationOptions, ReadKeptFilesAndSeeds) {
  SimulationOptions options = NonSexedOptions();
  for (const auto& [text, kept] : {std::pair("none", KeptFiles{}),
                                   {"all", KeptFiles{true, true, true}},
                                   {"parents", KeptFiles{true, false, false}},
                                   {"matrices, offspring", KeptFiles{false, true, true}}}) {
    options.keep = text;
    EXPECT_EQ(SettingsFrom(options)->keep, kept) << text;
  }
  for (const auto& [text, seed] :
       {std::pair("0", 0U), {"0017", 17U}, {"4294967295", 4294967295U}}) {
    options.seed = text;
    EXPECT_EQ(SettingsFrom(options)->seed, seed) << text;
  }
}

}  // namespace
}  // namespace kaldo

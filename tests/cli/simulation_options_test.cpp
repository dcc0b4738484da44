// SPDX-License-Identifier: GPL-3.0-or-later
// What the options of `kaldo simulate` stand for.
#include "cli/simulation_options.h"

#include <functional>
#include <gmock/gmock.h>

#include <gtest/gtest.h>

#include "cli/option_text.h"

namespace kaldo {
namespace {

using testing::StartsWith;

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
  ASSERT_TRUE(settings) << settings.error().sentence;
  EXPECT_EQ(settings->procedure, Procedure::kParental);
  EXPECT_EQ(settings->sets[0].uncollected, 10.5);
  EXPECT_EQ(settings->offspring_per_iteration, 300) << "leading zeros mean nothing";
  EXPECT_FALSE(settings->seed) << "the clock";
  EXPECT_FALSE(settings->keep) << "as the flow has it";

  const auto sexed = SettingsFrom(SexedOptions());
  ASSERT_TRUE(sexed) << sexed.error().sentence;
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

struct Refused {
  std::function<void(SimulationOptions&)> make;
  std::string sentence;
  std::string found;  ///< how it begins
};

void ExpectRefusals(const SimulationOptions& sound, const std::vector<Refused>& cases) {
  for (const Refused& each : cases) {
    SimulationOptions options = sound;
    each.make(options);
    const auto settings = SettingsFrom(options);
    ASSERT_FALSE(settings) << each.found;
    EXPECT_EQ(settings.error().sentence, each.sentence);
    EXPECT_THAT(settings.error().found, StartsWith(each.found));
  }
}

TEST(SimulationOptions, TellTheNumberThatIsMissing) {
  const std::string missing = "A number is missing!";
  ExpectRefusals(
      NonSexedOptions(),
      {{[](auto& o) { o.iterations.reset(); }, missing, "--iterations is needed"},
       {[](auto& o) { o.offspring_per_iteration.reset(); }, missing, "--offspring-per-iteration "},
       {[](auto& o) { o.parents.uncollected.reset(); }, missing, "--uncollected is needed"},
       {[](auto& o) {
          o.parents.collected.reset();
          o.parents.pseudo_collected_sample = "sample";
        },
        missing, "--pseudo-collected is needed"}});
  ExpectRefusals(
      SexedOptions(),
      {{[](auto& o) { o.males.pseudo_collected.reset(); }, missing, "--pseudo-collected-males "},
       {[](auto& o) { o.females.pseudo_collected.reset(); }, missing,
        "--pseudo-collected-females "},
       {[](auto& o) { o.males.uncollected.reset(); }, missing, "--uncollected-males "},
       {[](auto& o) { o.females.estimated_collected.reset(); }, missing,
        "--estimated-collected-females "},
       {[](auto& o) { o.females.estimated_uncollected.reset(); }, missing,
        "--estimated-uncollected-females "}});
}

TEST(SimulationOptions, RefuseTextsThatStandForNothing) {
  const std::string whole = "A whole number is wanted!";
  const std::string procedure = "Please, choose a procedure to run with !";
  const std::string kept = "There is no such kind of file to keep!";
  const std::string seed = "That seed is not possible!";
  ExpectRefusals(
      NonSexedOptions(),
      {{[](auto& o) { o.iterations = "2.5"; }, whole, "--iterations: \"2.5\""},
       {[](auto& o) { o.parents.uncollected = "10,5"; }, "A number is wanted!", "--uncollected: "},
       {[](auto& o) { o.criterion = "95%"; }, "A number is wanted!", "--criterion: "},
       {[](auto& o) { o.start_with = ""; }, whole, "--start-with: "},
       {[](auto& o) { o.strategy = "All"; }, procedure, "--strategy: \"All\" is none of: choice"},
       {[](auto& o) { o.strategy = ""; }, procedure, "--strategy: \"\""},
       {[](auto& o) { o.keep = "parents,pets"; }, kept, "--keep: \"pets\" is none of: parents"},
       {[](auto& o) { o.keep = "parents,none"; }, kept, "--keep: \"none\""},
       {[](auto& o) { o.seed = "4294967296"; }, seed, "--seed: \"4294967296\""},
       {[](auto& o) { o.seed = "-1"; }, seed, "--seed: \"-1\""},
       {[](auto& o) { o.seed = "1.0"; }, seed, "--seed: \"1.0\""},
       {[](auto& o) { o.threads = "0"; }, "That number of threads is not possible!", "--threads"},
       {[](auto& o) { o.error = "often"; }, "Choose a model of error", "--error: \"often\""}});
  ExpectRefusals(SexedOptions(),
                 {{[](auto& o) { o.males.uncollected = "2.5"; }, whole, "--uncollected-males: "}});
}

TEST(SimulationOptions, RefuseTheOtherFlowAndBothProcedures) {
  const std::string flow = "Choose options for parents, or with --sexed for males and females!";
  const std::string procedure = "Choose collected or pseudo-collected parents!";
  ExpectRefusals(NonSexedOptions(),
                 {{[](auto& o) { o.sexed = true; }, flow, "--sexed goes with"},
                  {[](auto& o) { o.males.collected = "males"; }, flow, "the options of males"},
                  {[](auto& o) { o.females.uncollected = "1"; }, flow, "the options of males"},
                  {[](auto& o) { o.females.estimated_uncollected = "1"; }, flow, "the options"},
                  {[](auto& o) { o.parents.pseudo_collected_sample = "s"; }, procedure, ""},
                  {[](auto& o) { o.parents.pseudo_collected = "3"; }, procedure, ""}});
  ExpectRefusals(SexedOptions(),
                 {{[](auto& o) { o.sexed = false; }, flow, "the options of males"},
                  {[](auto& o) { o.parents.uncollected = "1"; }, flow, "--sexed goes with"},
                  {[](auto& o) { o.males.collected = "males"; }, procedure, ""},
                  {[](auto& o) { o.females.collected = "females"; }, procedure, ""},
                  {[](auto& o) { o.males = {"males", {}, {}, "wild males", "5", "6", "7"}; },
                   procedure, "males and females come from"}});
}

}  // namespace
}  // namespace kaldo

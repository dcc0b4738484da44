// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/option_text.h"

#include <gtest/gtest.h>

#include "cli/terminal_progress.h"

namespace kaldo {
namespace {

using Names = std::vector<std::string>;
using Indices = std::vector<std::int32_t>;

TEST(ParseNames, CutsAtCommasAndTrims) {
  EXPECT_EQ(ParseNames("Ssa85"), Names{"Ssa85"});
  EXPECT_EQ(ParseNames(" Ssa85 ,\tSsa197,One Locus "), (Names{"Ssa85", "Ssa197", "One Locus"}));
  EXPECT_EQ(ParseNames("A,,B,"), (Names{"A", "", "B", ""})) << "an empty name is no locus";
  EXPECT_EQ(ParseNames(","), (Names{"", ""}));
  EXPECT_EQ(ParseNames(""), Names{});
  EXPECT_EQ(ParseNames(" \t"), Names{});
}

TEST(ParseSequence, TakesWholeNumbersOnly) {
  EXPECT_EQ(ParseSequence("3, 1,02"), (Indices{3, 1, 2}));
  EXPECT_EQ(ParseSequence("-1,4,4,3"), (Indices{-1, 4, 4, 3}));
  EXPECT_EQ(ParseSequence(""), Indices{});
  for (const std::string text : {"1,2.0", "1;2", "1,,3", "a", "1 2", "1,2,", "1,4294967298"}) {
    const auto indices = ParseSequence(text);
    ASSERT_FALSE(indices.has_value()) << text;
    EXPECT_EQ(indices.error().kind, ProblemKind::kSequenceHasZero);
  }
}

TEST(ParseThreads, TakesOneToALimit) {
  EXPECT_EQ(ParseThreads("010"), 10U);
  EXPECT_EQ(ParseThreads("1024"), 1024U);
  for (const std::string text : {"0", "-1", "1025", "4294967297", "two", ""}) {
    EXPECT_FALSE(ParseThreads(text).has_value()) << text;
  }
}

TEST(ParseErrorModel, ReadsEveryModel) {
  EXPECT_EQ(ParseErrorModel("none")->kind, ErrorKind::kNoError);
  const auto uniform = ParseErrorModel("uniform=0.05");
  ASSERT_TRUE(uniform.has_value());
  EXPECT_EQ(uniform->kind, ErrorKind::kUniform);
  EXPECT_EQ(uniform->epsilon, 0.05);
  EXPECT_EQ(ParseErrorModel("nonuniform"), ErrorModel{});
  const auto five = ParseErrorModel("nonuniform=0.01, 0.02,0.9,0.03 ,0.04");
  ASSERT_TRUE(five.has_value());
  EXPECT_EQ(*five, (ErrorModel{ErrorKind::kNonUniform, 0, 0.01, 0.02, 0.9, 0.03, 0.04}));
  for (const std::string text : {"", "Uniform=0.1", "uniform", "none=0", "nonuniform=0,0,1,0"}) {
    EXPECT_EQ(ParseErrorModel(text).error().kind, ProblemKind::kNoErrorModel) << text;
  }
}

TEST(ProgressLine, ShowsShareCountAndTimeLeft) {
  using std::chrono::seconds;
  const std::string bar = "Allocating [######..................]";
  EXPECT_EQ(ProgressLine("Allocating", 250, 1000, seconds(10)),
            bar + "  25 %  250 of 1000, 0:30 left");
  EXPECT_EQ(ProgressLine("Allocating", 250, 1000, seconds(3600)),
            bar + "  25 %  250 of 1000, 3:00:00 left");
  const std::string empty_bar = "P [........................]";
  const std::string full_bar = "P [########################]";
  EXPECT_EQ(ProgressLine("P", 0, 1000, seconds(5)), empty_bar + "   0 %  0 of 1000");
  EXPECT_EQ(ProgressLine("P", 1000, 1000, seconds(5)), full_bar + " 100 %  1000 of 1000");
  EXPECT_EQ(ProgressLine("P", 0, 0, seconds(5)), empty_bar + "   0 %  0 of 0");
}

}  // namespace
}  // namespace kaldo

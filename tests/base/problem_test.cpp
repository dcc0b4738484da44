// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/problem.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

TEST(DetailLine, NamesThePlaceAndWhatWasFoundThere) {
  Problem problem;
  problem.sentence = "Something is wrong!";
  EXPECT_EQ(DetailLine(problem), "");
  problem.found = "two words";
  EXPECT_EQ(DetailLine(problem), "two words");
  problem.file = "young.txt";
  EXPECT_EQ(DetailLine(problem), "young.txt: two words");
  problem.line = 12;
  problem.record = 11;
  EXPECT_EQ(DetailLine(problem), "young.txt, line 12, record 11: two words");
  problem.individual = "B07";
  problem.locus = "Ssa85";
  EXPECT_EQ(DetailLine(problem), "young.txt, line 12, record 11 (B07), locus Ssa85: two words");
  problem.found.clear();
  EXPECT_EQ(DetailLine(problem), "young.txt, line 12, record 11 (B07), locus Ssa85");
}

// A hostile or broken file must not be able to drive the user's terminal.
TEST(DetailLine, EscapesWhatATerminalObeys) {
  Problem problem;
  problem.file = "a\nb";
  problem.record = 1;
  problem.individual = "\033[2J";
  problem.locus = "L1\x07";
  problem.found = Quoted("\033]0;\x7f");
  EXPECT_EQ(DetailLine(problem), "a\\x0ab, record 1 (\\x1b[2J), locus L1\\x07: \"\\x1b]0;\\x7f\"");
  const std::string forty = "0123456789012345678901234567890123456789";
  EXPECT_EQ(Quoted(forty), "\"" + forty + "\"");
  EXPECT_EQ(Quoted(forty + 'x'), "\"" + forty + "...\"");
}

}  // namespace
}  // namespace kaldo

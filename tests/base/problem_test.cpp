// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/problem.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

TEST(SentenceOf, PutsTheValueInItsPlace) {
  EXPECT_EQ(SentenceOf({.kind = ProblemKind::kCannotOpenFile, .subject = "a{}b"}),
            "Cannot open file \"a{}b\"!");
  EXPECT_EQ(SentenceOf({.kind = ProblemKind::kNoLocusInUse}), "Choose at least one locus!");
}

// Users search for a sentence: each stands for one kind, and the manual has all of them.
TEST(ProblemSentences, AreDifferentAndInTheManual) {
  const std::string manual = test::ReadFile(std::string(KALDO_ROOT) + "/docs/file-formats.md");
  std::set<std::string_view> sentences;
  for (const auto& [kind, sentence] : kProblemSentences) {
    EXPECT_TRUE(sentences.insert(sentence).second) << sentence;
    const std::size_t value = std::min(sentence.find("{}"), sentence.size());
    const std::string begin = '"' + std::string(sentence.substr(0, value));
    const std::string end =
        std::string(sentence.substr(std::min(value + 2, sentence.size()))) + '"';
    const std::size_t place = manual.find(value == sentence.size() ? begin + '"' : begin);
    const std::size_t place_of_end = manual.find(end, place);
    ASSERT_NE(place_of_end, std::string::npos) << sentence;
    EXPECT_LT(place_of_end, manual.rfind(begin, place_of_end) + 200) << sentence;
  }
}

TEST(DetailLine, NamesThePlaceAndWhatWasFoundThere) {
  Problem problem{.kind = ProblemKind::kNoLocus};
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
  const Problem problem{.kind = ProblemKind::kNoLocus,
                        .file = "a\nb",
                        .record = 1,
                        .individual = "\033[2J",
                        .locus = "L1\x07",
                        // NOLINTNEXTLINE(misc-misleading-bidirectional): it must be told escaped
                        .found = Quoted("\033]0;\x7f") + " \xc2\x9b \x9b \xe2\x80\xae é 鯉 \xe8"};
  EXPECT_EQ(DetailLine(problem),
            "a\\x0ab, record 1 (\\x1b[2J), locus L1\\x07: \"\\x1b]0;\\x7f\" \\xc2\\x9b \\x9b "
            "\\xe2\\x80\\xae é 鯉 \\xe8");
  EXPECT_EQ(SentenceOf({.kind = ProblemKind::kCannotOpenFile, .subject = "a\033c"}),
            "Cannot open file \"a\\x1bc\"!");
  EXPECT_EQ(EscapedLines("a\tb\n\r"), "a\tb\n\\x0d");
  const std::string forty = "0123456789012345678901234567890123456789";
  EXPECT_EQ(Quoted(forty), "\"" + forty + "\"");
  EXPECT_EQ(Quoted(forty + 'x'), "\"" + forty + "...\"");
}

}  // namespace
}  // namespace kaldo

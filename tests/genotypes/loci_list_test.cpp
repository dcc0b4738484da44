// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/loci_list.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;

class LociListTest : public testing::Test {
 protected:
  TokenFile Open(const std::string& text) const {
    return std::move(*TokenFile::Read(folder_.Write("loci.txt", text)));
  }

  /// The sentence, a line end, and the line of detail without the path; empty when all is well.
  std::string Check(const std::string& text) const {
    const auto problem = CheckLoci(Open(text));
    if (!problem) {
      return "";
    }
    return SentenceOf(*problem) + '\n' +
           DetailLine(*problem).substr(folder_.Path("loci.txt").size());
  }

  static std::vector<std::string> NamesInUse(const LociList& loci) {
    std::vector<std::string> names;
    for (const LocusIndex locus : loci.LociInUse()) {
      EXPECT_TRUE(loci.InUse(locus));
      names.push_back(loci.Name(locus));
    }
    return names;
  }

 private:
  TempFolder folder_;
};

using Names = std::vector<std::string>;

TEST_F(LociListTest, ChecksTheFile) {
  std::string fifty;
  for (int locus = 1; locus <= 50; ++locus) {
    fifty += "Locus" + std::to_string(locus) + '\n';
  }
  EXPECT_EQ(Check(fifty), "");
  EXPECT_EQ(Check(fifty + "OneMore"),
            "More than 50 loci!\n, line 51, locus OneMore: the file names 51 loci");
  EXPECT_EQ(Check("A B\r\nC\r\n"), "");
  EXPECT_EQ(
      Check(" \n"),
      "The names of loci file holds no locus!\n: the file is empty; write one name per locus");
  EXPECT_EQ(Check("Fourteen-bytes"), "");
  EXPECT_EQ(Check("A\nFifteen--bytes!"),
            "A locus name has more than 14 characters!\n, line 2, locus Fifteen--bytes: "
            "\"Fifteen--bytes!\" has 15 characters");
  EXPECT_EQ(Check("Ssa85 Ssa197\nSsa85"),
            "Two loci have the same name!\n, line 2, locus Ssa85: \"Ssa85\" stands in line 1 "
            "already");
  EXPECT_EQ(Check("Ssa85 ssa85"), "");
}

TEST_F(LociListTest, UsesTheNamedLociInFileOrder) {
  LociList loci(Open("A B\nC D"));
  EXPECT_EQ(NamesInUse(loci), (Names{"A", "B", "C", "D"}));
  EXPECT_FALSE(loci.Use({"D", "B", "D"}));
  EXPECT_EQ(NamesInUse(loci), (Names{"B", "D"}));
  EXPECT_FALSE(loci.Use({"A"}));
  EXPECT_EQ(NamesInUse(loci), (Names{"A"})) << "an earlier choice adds nothing";

  const auto unknown = loci.Use({"B", "b"});
  ASSERT_TRUE(unknown);
  EXPECT_EQ(SentenceOf(*unknown), "There is no locus of that name!");
  EXPECT_EQ(DetailLine(*unknown),
            "\"b\" is none of the 4 names of the names-of-loci file: A B C D");
  const auto none = loci.Use({});
  ASSERT_TRUE(none);
  EXPECT_EQ(SentenceOf(*none), "Choose at least one locus!");
  EXPECT_EQ(NamesInUse(loci), (Names{"A"})) << "a refused choice changes nothing";
}

// The names come from a file and go to the user's terminal.
TEST_F(LociListTest, ShowsNamesEscaped) {
  LociList loci(Open("\033[2JA B"));
  const auto unknown = loci.Use({"C"});
  ASSERT_TRUE(unknown);
  EXPECT_EQ(DetailLine(*unknown).find('\033'), std::string::npos);
}

}  // namespace
}  // namespace kaldo

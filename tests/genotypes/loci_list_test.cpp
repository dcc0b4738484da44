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

TEST_F(LociListTest, TakesFiftyDifferentNamesOfFourteenBytes) {
  std::string fifty;
  for (int locus = 1; locus <= 50; ++locus) {
    fifty += "Locus" + std::to_string(locus) + '\n';
  }
  for (const std::string& good : {fifty, std::string("A B\r\nC\r\n"), std::string("Fourteen-bytes"),
                                  std::string("Ssa85 ssa85")}) {
    EXPECT_FALSE(CheckLoci(Open(good))) << good;
  }
  EXPECT_TRUE(CheckLoci(Open(fifty + "OneMore")));
  EXPECT_TRUE(CheckLoci(Open("A\nFifteen--bytes!")));
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
  EXPECT_EQ(DetailLine(*unknown),
            "\"b\" is none of the 4 names of the names-of-loci file: A B C D");
  EXPECT_TRUE(loci.Use({}));
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/record_checks.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;

constexpr RecordLayout kParentsOfTwoLoci{2, Separators::kAllowed};
constexpr RecordLayout kOffspringOfTwoLoci{2, Separators::kNone};

TokenFile Open(const TempFolder& folder, const std::string& text) {
  return std::move(*TokenFile::Read(folder.Write("f.txt", text)));
}

/// The sentence, a line end, and the line of detail without the path; empty when all is well.
std::string Check(const std::string& text, RecordLayout layout, std::size_t digits = 6) {
  const TempFolder folder;
  const LociList loci(Open(folder, "L1 L2"));
  const auto problem = CheckRecords(Open(folder, text), layout, loci, digits);
  if (!problem) {
    return "";
  }
  return SentenceOf(*problem) + '\n' + DetailLine(*problem).substr(folder.Path("f.txt").size());
}

TEST(CheckRecords, AcceptsGoodFiles) {
  EXPECT_EQ(Check("*\nA1 152156 100102\n*a separator\n", kParentsOfTwoLoci),
            "A record has a wrong number of fields!\n"
            ", line 3, record 3 (*a): a separator stands alone on its line");
  EXPECT_EQ(Check("*\nA1 152156 100102\n*separator-longer-than-a-name\n", kParentsOfTwoLoci), "");
  EXPECT_EQ(Check("*x\n152156\n100102 O2 000000 000000", kOffspringOfTwoLoci), "");
  EXPECT_EQ(Check("A12345678901234 10021002 10041006", kParentsOfTwoLoci, 8), "");
  EXPECT_EQ(Check("", kParentsOfTwoLoci), "");
}

TEST(CheckRecords, TellsALostOrGainedField) {
  const std::string sentence = "A record has a wrong number of fields!\n";
  EXPECT_EQ(
      Check("A1 100102 100104\nA2 100102 100104 100106\nA3 100102 100104\n", kParentsOfTwoLoci),
      sentence + ", line 2, record 2 (A2): fields after the name: 3, loci named: 2");
  // What one record lost the next but one gained: the count of words fits, the words do not.
  EXPECT_EQ(Check("A1 100102 100104\nA2 100102\nA3 100102 100104\nA4 100102 100104 100106\n"
                  "A5 100102 100104\n",
                  kParentsOfTwoLoci),
            sentence + ", line 2, record 2 (A2): fields after the name: 1, loci named: 2");
  EXPECT_EQ(Check("*\nO1 100102 100104\nO2 100102 100104\n", kOffspringOfTwoLoci),
            sentence +
                ", line 1, record 1 (*): fields after the name: 0, loci named: 2; "
                "separators are read in parents files only");
  // Several lines to a record: only the torn end can be told.
  EXPECT_EQ(Check("A1\n100102\n100104\nA2\n100102", kParentsOfTwoLoci),
            sentence + ", line 4, record 2 (A2): the file ends after 1 of its 2 fields");
}

TEST(DigitsPerField, AreThoseOfTheFirstIndividual) {
  const TempFolder folder;
  const auto digits = [&folder](const std::string& text, RecordLayout layout) {
    return DigitsPerField(Open(folder, text), layout);
  };
  EXPECT_EQ(digits("A1 9598 100104", kParentsOfTwoLoci), 4U);
  EXPECT_EQ(digits("* *pond2\nA1 100102 1", kParentsOfTwoLoci), 6U);
  EXPECT_EQ(digits("*O1 9598 100104", kOffspringOfTwoLoci), 4U);
  EXPECT_EQ(digits("* *", kParentsOfTwoLoci), 0U);
  EXPECT_EQ(digits("A1", kParentsOfTwoLoci), 0U);
}

TEST(CountIndividuals, LeavesSeparatorsOut) {
  const TempFolder folder;
  const TokenFile file = Open(folder, "* A1 100102 100104 *b *c A2 100102 100104");
  EXPECT_EQ(CountIndividuals(file, kParentsOfTwoLoci), 2U);
}

}  // namespace
}  // namespace kaldo

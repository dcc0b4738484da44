// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/genotype_reader.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;

class GenotypeReaderTest : public testing::Test {
 protected:
  TokenFile Open(const std::string& text) const {
    return std::move(*TokenFile::Read(folder_.Write("f.txt", text)));
  }

  /// Every individual as "name 152/156 0/0".
  static std::vector<std::string> Shown(const GenotypeTable& table) {
    std::vector<std::string> lines;
    for (std::uint32_t slot = 0; slot < table.NumberOfIndividuals(); ++slot) {
      std::string line(table.Name(Slot{slot}).Text());
      for (std::uint32_t locus = 0; locus < table.NumberOfLoci(); ++locus) {
        const LocusGenotype& genotype = table.Genotype(LocusIndex{locus}, Slot{slot});
        line += fmt::format(" {}/{}", genotype.allele1.Value(), genotype.allele2.Value());
      }
      lines.push_back(line);
    }
    return lines;
  }

 private:
  TempFolder folder_;
};

using Lines = std::vector<std::string>;

TEST_F(GenotypeReaderTest, FillsOneTableFromSeveralFiles) {
  const LociList loci(Open("L1 L2"));
  GenotypeTable table(2);
  const SlotRange parents = AppendIndividuals(Open("*\nP1 156152 098104\n*pond P2\n152152\n104104"),
                                              {2, Separators::kAllowed}, loci, table);
  const SlotRange offspring =
      AppendIndividuals(Open("*x 152156 000000"), {2, Separators::kNone}, loci, table);
  EXPECT_EQ(parents, (SlotRange{0, 4}));
  EXPECT_EQ(offspring, (SlotRange{4, 5}));
  EXPECT_EQ(Shown(table), (Lines{"* 0/0 0/0", "P1 156/152 98/104", "*pond 0/0 0/0",
                                 "P2 152/152 104/104", "*x 152/156 0/0"}));
  EXPECT_TRUE(table.Genotype(LocusIndex{1}, Slot{4}).IsMissing());
}

TEST_F(GenotypeReaderTest, SplitsFieldsOfTwoToEightDigits) {
  const LociList loci(Open("L1"));
  GenotypeTable table(1);
  AppendIndividuals(Open("A 79 B 9598 C 095104 D 09501040 E 99990001"), {1, Separators::kNone},
                    loci, table);
  EXPECT_EQ(Shown(table), (Lines{"A 7/9", "B 95/98", "C 95/104", "D 950/1040", "E 9999/1"}));
}

TEST_F(GenotypeReaderTest, LeavesLociNotInUseMissing) {
  LociList loci(Open("L1 L2 L3"));
  ASSERT_FALSE(loci.Use({"L1", "L3"}));
  GenotypeTable table(3);
  AppendIndividuals(Open("A 100102 200204 300306"), {3, Separators::kAllowed}, loci, table);
  EXPECT_EQ(Shown(table), (Lines{"A 100/102 0/0 300/306"}));
}

}  // namespace
}  // namespace kaldo

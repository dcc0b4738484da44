// SPDX-License-Identifier: GPL-3.0-or-later
// Which sentence a user reads for which fault, and in which order faults are told.
#include "allocation/allocation_input.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "allocation/reports/allocation_reports.h"
#include "method/cumulative_sequence.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

class InputTest : public testing::Test {
 protected:
  InputTest() {
    settings_.loci_file = folder_.Write("loci", "L1 L2");
    settings_.offspring_file = folder_.Write("offspring", "K1 1012 2022\nK2 0000 2020\n");
    Parents("A 1012 2020\nB 1212 2022\n");
    Sexed("M 1012 2020\n", "F 1212 2022\n");
    settings_.flow = Flow::kNonSexed;
  }

  void Parents(std::string_view text) { settings_.parents_file = folder_.Write("parents", text); }
  void Offspring(std::string_view text) {
    settings_.offspring_file = folder_.Write("offspring", text);
  }
  void Sexed(std::string_view males, std::string_view females) {
    settings_.flow = Flow::kSexed;
    settings_.males_file = folder_.Write("males", males);
    settings_.females_file = folder_.Write("females", females);
  }

  std::string Sentence() {
    const auto input = LoadAllocationInput(settings_);
    detail_ = input ? "" : DetailLine(input.error());
    return input ? "ok" : SentenceOf(input.error());
  }

  test::TempFolder folder_;
  AllocationSettings settings_;
  std::string detail_;
};

TEST_F(InputTest, LoadsBothFlows) {
  EXPECT_EQ(Sentence(), "ok") << detail_;
  Sexed("M 1012 2020\n*\n", "*\nF 1212 2022\n");
  const auto input = LoadAllocationInput(settings_);
  ASSERT_TRUE(input);
  EXPECT_EQ(input->first_parents, (SlotRange{0, 2}));
  EXPECT_EQ(input->second_parents, (SlotRange{2, 4}));
  EXPECT_EQ(input->offspring, (SlotRange{4, 6}));
  EXPECT_EQ(input->NumberOfParents(), 2U);
  EXPECT_EQ(input->NumberOfMissingGenotypes(), 1U);
  EXPECT_EQ(input->digits_per_field, 4U);
}

TEST_F(InputTest, TellsTheLastFaultOfTheFilesInTheOrderOfTheScreen) {
  const std::string odd_male = "M 101 2020\n";
  const std::string undefined_female = "F 1200 2022\n";
  Sexed(odd_male, undefined_female);
  EXPECT_EQ(
      Sentence(),
      "Female parental loci should not contain undefined alleles i.e. represented by a string "
      "of 0s!");
  settings_.allow_undefined_parents = true;
  EXPECT_EQ(
      Sentence(),
      "Female parental loci should not contain undefined alleles i.e. represented by a string "
      "of 0s!")
      << "half a genotype is none";
  Sexed(odd_male, "F 0000 2022\n");
  EXPECT_EQ(Sentence(), "Some male parental loci are represented with an odd number of digits!");
  settings_.allow_undefined_parents = false;
  Sexed(odd_male, undefined_female);
  Offspring("K1 1000 2022\n");
  EXPECT_EQ(Sentence(),
            "Offspring loci should contain totally defined alleles(no string of 0s) or totally "
            "undefined alleles (two strings of 0s)!");
  Offspring("K1 101 2022\n");
  EXPECT_EQ(Sentence(), "Some offspring loci are represented with an odd number of digits!");

  Offspring("K1 1012 2022\n");
  Sexed("M 1012 2020\n*\n", "F 1212 2022\n");
  EXPECT_EQ(Sentence(), "The male and the female file hold different numbers of separators!");
  Sexed("M 1000 2020\n*\n", "F 1212 2022\n");
  EXPECT_EQ(Sentence(),
            "Male parental loci should not contain undefined alleles i.e. represented by a string "
            "of 0s!");
}

TEST_F(InputTest, TellsFilesBeforeChoicesAndChoicesInTheOrderOfTheScreens) {
  settings_.sequence = {0, 3};
  settings_.loci_in_use.emplace();
  settings_.error_model = ErrorModel{};
  settings_.error_model.focal = 0.5;
  settings_.tolerance = OffsetTolerance{-1};
  settings_.loci_file = folder_.Path("absent");
  Parents("A 101 2020\n");
  EXPECT_EQ(Sentence(), fmt::format("Cannot open file \"{}\"!", settings_.loci_file));
  settings_.loci_file = folder_.Path("loci");
  EXPECT_EQ(Sentence(), "Enter a positive number");
  settings_.tolerance = OffsetTolerance{0};
  EXPECT_EQ(Sentence(), "Some parental loci are represented with an odd number of digits!");
  Parents("A 1012 20202020\n");
  EXPECT_EQ(Sentence(), "A genotype field has another number of digits!");
  Parents("A 1012 2020\n");
  EXPECT_EQ(Sentence(), "Sum of probability must be 1 ! ");
  settings_.error_model = ErrorModel{};
  EXPECT_EQ(Sentence(), "Choose at least one locus!");
  settings_.loci_in_use = {"L2"};
  EXPECT_EQ(
      Sentence(),
      "Set of indices has to run from 1 to the total number of loci. No zero! Only integers!");
  settings_.sequence = {1, 3};
  EXPECT_EQ(Sentence(),
            "Set of indices has to run from 1 to the total number of loci. Not farther!");
  settings_.sequence = {1, 1};
  EXPECT_EQ(Sentence(), "Set of indices has to run from 1 to the total number of loci.");
  settings_.sequence = {2, 1};
  EXPECT_EQ(Sentence(), "ok");
}

TEST_F(InputTest, RefusesWhatNoTableHolds) {
  Parents("*\n*\n");
  EXPECT_EQ(Sentence(), "The file of collected parents holds no individual!");

  // 101 sizes at the second locus: 99 in the parents, two more in the young.
  std::string parents;
  for (int i = 0; i < 99; ++i) {
    parents += fmt::format("P{} 1012 {:02}{:02}\n", i, i + 1, i + 1);
  }
  settings_.loci_file = folder_.Write("loci", "L1 L2");
  Parents(parents);
  Offspring("K1 1012 0101\nK2 1012 9901\n");
  EXPECT_EQ(Sentence(), "ok");
  std::string wide;
  for (int i = 0; i < 99; ++i) {
    wide += fmt::format("P{} 100102 {:03}{:03}\n", i, i + 1, i + 1);
  }
  Parents(wide);
  Offspring("K1 100102 100101\nK2 100102 001102\n");
  EXPECT_EQ(Sentence(), "More than 100 alleles at a locus!");
  EXPECT_EQ(detail_, folder_.Path("offspring") +
                         ", line 1, record 1 (K1), locus L2: this individual brings the first size "
                         "too many, parents and offspring together");
  settings_.loci_in_use = {"L1"};
  EXPECT_EQ(Sentence(), "ok") << "the locus is not in use";
}

TEST_F(InputTest, RefusesMoreIndividualsThanATableHolds) {
  std::string many;
  for (int i = 0; i < 50'000; ++i) {
    many += fmt::format("P{} 1012 2020\n", i);
  }
  Parents(many);
  Offspring(many);
  EXPECT_EQ(Sentence(), "ok") << "parents and offspring have a table each";
  Parents(many + "*\n");
  EXPECT_EQ(Sentence(), "More than 50000 individuals!");
}

TEST(CumulativeSequence, OrdersTheLociInUseByIndexAndEqualIndicesByFile) {
  const std::vector<LocusIndex> in_use = {LocusIndex{0}, LocusIndex{1}, LocusIndex{3},
                                          LocusIndex{4}};
  const std::vector<std::int32_t> indices = {4, 2, 1, 4, -3};
  const std::vector<LocusIndex> order = {LocusIndex{4}, LocusIndex{1}, LocusIndex{0},
                                         LocusIndex{3}};
  EXPECT_EQ(OrderOfEntry(in_use, indices), order);
}

TEST(CumulativeSequence, TestsTheSumOnly) {
  const auto accepted = [](std::vector<std::int32_t> indices, std::size_t loci) {
    return !CheckSequence(indices, loci);
  };
  EXPECT_TRUE(accepted({4, 3, 2, 1}, 4));
  EXPECT_TRUE(accepted({1, 1, 4, 4}, 4));
  EXPECT_TRUE(accepted({2, 2, 2}, 3));
  EXPECT_TRUE(accepted({-1, 4, 4, 3}, 4));
  EXPECT_FALSE(accepted({1, 2, 3, 5}, 4));
  EXPECT_FALSE(accepted({0, 2, 4}, 3));
  EXPECT_FALSE(accepted({1, 2, 2}, 3));
  EXPECT_FALSE(accepted({1, 2, 3, 4}, 3));
  EXPECT_FALSE(accepted({3, 3}, 3)) << "the right sum with an index missing";
}

}  // namespace
}  // namespace kaldo

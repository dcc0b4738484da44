// SPDX-License-Identifier: GPL-3.0-or-later
// Which subsets of loci a strategy runs through, and in which order.
#include "simulation/locus_subsets.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using Places = std::vector<std::uint32_t>;

/// The loci L0, L1, ..., of which the named ones are in use.
LociList LociOf(std::uint32_t count, const std::optional<Places>& in_use = {}) {
  const test::TempFolder folder;
  std::string names;
  for (std::uint32_t locus = 0; locus < count; ++locus) {
    names += fmt::format("L{} ", locus);
  }
  LociList loci(TokenFile::Read(folder.Write("loci", names)).value());
  if (in_use) {
    std::vector<std::string> used;
    for (const std::uint32_t locus : *in_use) {
      used.push_back(fmt::format("L{}", locus));
    }
    EXPECT_FALSE(loci.Use(used));
  }
  return loci;
}

SimulationSettings Wanted(LociStrategy strategy, std::int32_t start_with) {
  SimulationSettings settings;
  settings.strategy = strategy;
  settings.start_with = start_with;
  return settings;
}

std::vector<Places> SubsetsOf(const SimulationSettings& settings, const LociList& loci) {
  const auto subsets = LocusSubsets::Choose(settings, loci);
  EXPECT_TRUE(subsets);
  std::vector<Places> all;
  for (std::size_t i = 0; i < subsets->Count(); ++i) {
    all.emplace_back();
    for (const LocusIndex locus : subsets->At(i)) {
      all.back().push_back(locus.Value());
    }
  }
  return all;
}

/// Every way to go on from `chosen` with `more` of the loci behind place `from`.
void Enumerate(const Places& loci, std::size_t from, std::size_t more, const Places& chosen,
               std::vector<Places>& all) {
  if (more == 0) {
    all.push_back(chosen);
    return;
  }
  for (std::size_t place = from; place < loci.size(); ++place) {
    Places longer = chosen;
    longer.push_back(loci[place]);
    Enumerate(loci, place + 1, more - 1, longer, all);
  }
}

TEST(LocusSubsets, OfAllAndMinimalGrowAndFollowTheFile) {
  for (std::uint32_t count = 1; count <= 8; ++count) {
    Places in_use;
    for (std::uint32_t locus = 0; locus < count; ++locus) {
      in_use.push_back(2 * locus);
    }
    const LociList loci = LociOf(2 * count, in_use);
    for (std::uint32_t start = 1; start <= count; ++start) {
      std::vector<Places> enumerated;
      for (std::size_t size = start; size <= count; ++size) {
        Enumerate(in_use, 0, size, {}, enumerated);
      }
      for (const LociStrategy strategy : {LociStrategy::kAll, LociStrategy::kMinimal}) {
        EXPECT_EQ(SubsetsOf(Wanted(strategy, static_cast<std::int32_t>(start)), loci), enumerated);
      }
    }
  }
}

TEST(LocusSubsets, TooManyOrTooFewAreRefusedWithTheNumber) {
  const auto sentence = [](std::int32_t start_with, std::uint32_t loci) {
    const auto subsets = LocusSubsets::Choose(Wanted(LociStrategy::kAll, start_with), LociOf(loci));
    return subsets ? fmt::format("{} subsets", subsets->Count()) : SentenceOf(subsets.error());
  };
  EXPECT_EQ(sentence(1, 20), "1048575 subsets");
  EXPECT_EQ(sentence(1, 21), "There would be 2097151 subsets of loci!");
  EXPECT_EQ(sentence(11, 21), "1048576 subsets") << "half of 2^21, which is just the limit";
  EXPECT_EQ(sentence(10, 21), "There would be 1401292 subsets of loci!") << "21 over 10 more";
  // Half of 2^50, and half of 50 over 25.
  EXPECT_EQ(sentence(25, 50), "There would be 626155256640188 subsets of loci!");
  EXPECT_EQ(sentence(1, 50), "There would be 1125899906842623 subsets of loci!");
  EXPECT_EQ(sentence(50, 50), "1 subsets");

  // A search for a minimal subset begins all the same, with the smallest.
  const auto minimal = LocusSubsets::Choose(Wanted(LociStrategy::kMinimal, 1), LociOf(50));
  ASSERT_TRUE(minimal);
  EXPECT_EQ(minimal->Count(), kMostSubsets);
  EXPECT_EQ(minimal->InAll(), 1125899906842623U);
  EXPECT_EQ(minimal->At(49), LocusSubset{LocusIndex{49}});
  EXPECT_EQ(minimal->At(50), (LocusSubset{LocusIndex{0}, LocusIndex{1}}));
  EXPECT_EQ(minimal->At(kMostSubsets - 1).size(), 5U) << "50 + 1225 + 19600 + 230300 are smaller";

  for (const LociStrategy strategy :
       {LociStrategy::kAll, LociStrategy::kMinimal, LociStrategy::kCumulative}) {
    const auto subsets = LocusSubsets::Choose(Wanted(strategy, 3), LociOf(5, Places{0, 4}));
    ASSERT_FALSE(subsets);
    EXPECT_EQ(SentenceOf(subsets.error()),
              "Fewer loci are in use than the number of loci to start with!");
    EXPECT_EQ(subsets.error().found, "2 loci in use, the subsets start with 3");
  }
}

}  // namespace
}  // namespace kaldo

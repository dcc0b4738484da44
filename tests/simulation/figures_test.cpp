// SPDX-License-Identifier: GPL-3.0-or-later
// How decisions are scored against the truth, and what is computed from the counts.
#include "simulation/figures.h"

#include <cmath>
#include <set>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "simulation/non_sexed_simulation.h"
#include "simulation/scoring.h"
#include "simulation/sexed/sexed_design.h"
#include "simulation/sexed/sexed_simulation.h"

namespace kaldo {
namespace {

using Sizes = std::vector<std::int32_t>;
using Rows = std::vector<std::string>;

/// Allocated / correct / weight of every row, as the reports show them.
const std::vector<Rows> kNonSexedRows = {
    {"2 C/2/2", "2 C/1/1", "2 C/0/0", "C + UC/1/1", "C + UC/0/0", "2 UC/0/0"},
    {"2 C/1/1", "2 C/0/0", "C + UC/1/2", "C + UC/0/1", "2 UC/0/1"},
    {"2 C/0/0", "C + UC/0/1", "2 UC/0/2"}};
const std::vector<Rows> kSexedRows = {
    {"male, female/male, female/2", "male, female/male/1", "male, female/female/1",
     "male, female/none/0", "male/male/1", "male/none/0", "female/female/1", "female/none/0",
     "none/none/0"},
    {"male, female/male/1", "male, female/none/0", "male/male/2", "male/none/1", "female/none/1",
     "none/none/1"},
    {"male, female/female/1", "male, female/none/0", "male/none/1", "female/female/2",
     "female/none/1", "none/none/1"},
    {"male, female/none/0", "male/none/1", "female/none/1", "none/none/2"}};

ParentPair Pair(std::uint32_t parent1, std::uint32_t parent2) {
  return {Slot{parent1}, Slot{parent2}};
}

std::string SexesOf(bool male, bool female) {
  return male && female ? "male, female" : male ? "male" : female ? "female" : "none";
}

/// "allocated/correct" in words, straight from who is who.
std::string Judged(Flow flow, ParentPair pair, ParentPair truth, bool side1, bool side2) {
  if (flow == Flow::kSexed) {
    return SexesOf(side1, side2) + '/' +
           SexesOf(side1 && pair.parent1 == truth.parent1, side2 && pair.parent2 == truth.parent2);
  }
  const std::set<Slot> true_parents = {truth.parent1, truth.parent2};
  const auto correct = (side1 ? true_parents.count(pair.parent1) : 0) +
                       (side2 ? true_parents.count(pair.parent2) : 0);
  const std::string allocated = side1 && side2 ? "2 C" : side1 || side2 ? "C + UC" : "2 UC";
  return fmt::format("{}/{}", allocated, correct);
}

/// Shows every decision about one pseudo-offspring of a class to Score() and tells the rows met.
/// Collected are 0 to 3 (sexed: males 0 and 1, females 2 and 3), uncollected 4 and 5.
std::set<std::size_t> RowsMet(Flow flow, const OriginClass& origin, const Rows& rows,
                              ParentPair truth) {
  std::set<std::size_t> met;
  for (std::uint32_t i = 0; i < (flow == Flow::kSexed ? 2 : 4); ++i) {
    for (std::uint32_t j = flow == Flow::kSexed ? 2 : i + 1; j < 4; ++j) {
      for (unsigned sides = 0; sides < 4; ++sides) {
        AllocationOutcome outcome;
        outcome.pair_entries = 2;
        outcome.pairs.front() = Pair(i, j);
        outcome.par1_uncollected = (sides & 1U) == 0;
        outcome.par2_uncollected = (sides & 2U) == 0;
        ClassCounts counts;
        Score(flow, origin, outcome, truth, counts);
        const std::string judged =
            Judged(flow, Pair(i, j), truth, (sides & 1U) != 0, (sides & 2U) != 0) + '/';
        EXPECT_EQ(counts.size, 1);
        for (std::size_t row = 0; row < rows.size(); ++row) {
          const bool is_here =
              rows[row].starts_with(judged) && rows[row].size() == judged.size() + 1;
          EXPECT_EQ(counts.rows.at(row), is_here ? 1 : 0) << rows[row] << " for " << judged;
          if (is_here) {
            met.insert(row);
          }
        }
      }
    }
  }
  return met;
}

TEST(Score, PutsEveryDecisionIntoItsRow) {
  const std::vector<std::vector<ParentPair>> non_sexed_truths = {
      {Pair(0, 1), Pair(3, 1)}, {Pair(2, 4)}, {Pair(5, 4)}};
  const std::vector<std::vector<ParentPair>> sexed_truths = {
      {Pair(0, 2), Pair(1, 2)}, {Pair(1, 5)}, {Pair(4, 2)}, {Pair(4, 5)}};
  for (const SimulationFlow* flow : {&NonSexedSimulation(), &SexedSimulation()}) {
    const SimulationDesign& design = flow->Design();
    const bool sexed = design.flow == Flow::kSexed;
    const auto& tables = sexed ? kSexedRows : kNonSexedRows;
    ASSERT_EQ(design.classes.size(), tables.size());
    for (std::size_t k = 0; k < tables.size(); ++k) {
      const OriginClass& origin = design.classes[k];
      Rows rows;
      for (const OriginRow& row : origin.rows) {
        rows.push_back(fmt::format("{}/{}/{}", row.allocated_label, row.correct_label, row.weight));
      }
      EXPECT_EQ(rows, tables[k]);
      for (const ParentPair truth : (sexed ? sexed_truths : non_sexed_truths)[k]) {
        EXPECT_EQ(RowsMet(design.flow, origin, rows, truth).size(), rows.size());
      }
    }
  }
}

TEST(Score, TellsSinglePairsFromTiesMarksAndNoPair) {
  const OriginClass& origin = SexedSimulation().Design().classes[0];
  ClassCounts counts;
  const auto score = [&](int entries, ParentPair pair, bool more_than_five) {
    AllocationOutcome outcome;
    outcome.pair_entries = entries;
    outcome.pairs.front() = pair;
    outcome.more_than_five = more_than_five;
    outcome.par1_uncollected = true;  // the decision on the sides is another matter
    Score(Flow::kSexed, origin, outcome, Pair(0, 2), counts);
  };
  score(2, Pair(0, 2), false);
  score(2, Pair(0, 3), false);
  score(2, Pair(1, 2), false);
  score(2, Pair(1, 3), false);
  score(2, Pair(1, 3), false);
  score(4, Pair(0, 2), false);
  score(2, Pair(0, 2), true);  // a better pair found after the mark
  score(0, Pair(0, 2), false);
  EXPECT_EQ(counts.single_pair, (std::array<std::int32_t, 4>{2, 1, 1, 1}));
  EXPECT_EQ(counts.first_pair, (std::array<std::int32_t, 4>{3, 1, 1, 3}));
  EXPECT_EQ(counts.ambiguous, 2);
  EXPECT_EQ(counts.nulls, 1);
  EXPECT_EQ(counts.rows, (std::array<std::int32_t, 9>{0, 0, 0, 0, 0, 0, 4, 3, 1}));

  std::vector<double> columns(8);
  SexedSimulation().FillColumns(counts, columns);
  EXPECT_EQ(columns, (std::vector<double>{0.125, 0.5, 0.25, 0.375, 0.25, 0.375, 0.25, 0.125}));
}

TEST(SpreadOf, FormsMeansAndDeviationsInThreeWays) {
  const std::vector<double> one = {0.3};
  for (const SpreadKind kind :
       {SpreadKind::kDifferences, SpreadKind::kSquares, SpreadKind::kSteps}) {
    const Spread of_two = SpreadOf(std::vector<double>{1, 3}, kind);
    EXPECT_EQ(of_two.mean, 2) << "and the divisor is 2, not 1:";
    EXPECT_EQ(of_two.deviation, 1);
    EXPECT_EQ(SpreadOf(one, kind).mean, 0.3);
    EXPECT_EQ(FormatDouble(SpreadOf(one, kind).deviation), "0");
  }
  // 1/3 + 2/3 + 6/3, and a third of 1 + 4 + 36 less 9.
  const Spread steps = SpreadOf(std::vector<double>{1, 2, 6}, SpreadKind::kSteps);
  EXPECT_EQ(steps.mean, 3);
  EXPECT_DOUBLE_EQ(steps.deviation, std::sqrt(14.0 / 3.0));
}

// Six times 0.7: the squares' mean falls a hair below the square of the mean.
TEST(SpreadOf, LeavesARoundedNegativeVarianceNotANumber) {
  const std::vector<double> six(6, 0.7);
  const std::vector<double> seven(7, 0.7);
  EXPECT_EQ(FormatDouble(SpreadOf(six, SpreadKind::kSquares).deviation), "nan");
  EXPECT_EQ(FormatDouble(SpreadOf(seven, SpreadKind::kSteps).deviation), "nan");
  EXPECT_LT(SpreadOf(six, SpreadKind::kDifferences).deviation, 1e-15);
}

TEST(Weighed, AddsFromTheLeft) {
  EXPECT_EQ(Weighed(std::vector<double>{0.25, 0.75}, std::vector<double>{1, 2}), 1.75);
  EXPECT_EQ(Weighed(std::vector<double>{1, 1, 1}, std::vector<double>{1e16, 1, -1e16}), 0);
}

TEST(CorrectFrequency, IsHalfTheWeightedShareOfTheClass) {
  // Class 2, two with both sides, three males rightly alone, one female, two without: 2 + 6 + 1
  // + 2.
  const SimulationDesign& design = SexedSimulation().Design();
  IterationCounts counts{};
  counts[1].size = 8;
  counts[1].rows = {2, 0, 3, 0, 1, 2};
  EXPECT_EQ(CorrectFrequency(design.classes[1], counts[1]), 11.0 / 16.0);
  EXPECT_EQ(CorrectFrequency(design.classes[0], counts[0]), 0) << "no pseudo-offspring";
  counts[3].size = 2;
  counts[3].rows = {1, 0, 0, 1};  // 2 of 4
  SimulationInput input;
  input.weights = {0.5, 0.25, 0, 0.25};
  EXPECT_EQ(GlobalCorrectFrequency(design, input, counts), 13.0 / 20.0) << "pooled";
  EXPECT_EQ(GlobalRowFrequency(design, input, counts, design.classes[0].rows[8]), 3.0 / 10.0);

  // ... weighted: 0.25 x 11/16 + 0.25 x 1/2.
  const auto figures = WeightedFigures(SexedSimulation(), input, std::vector(1, counts));
  ASSERT_EQ(figures.size(), kSexedFigures);
  EXPECT_EQ(figures[kSexedAnyCorrect], 0.296875);
  EXPECT_EQ(figures[kToMale], 0.25 * 5 / 8 + 0.25 / 2);
  EXPECT_EQ(figures[kRightToMale], 0.25 * 5 / 8);
  EXPECT_EQ(figures[kToFemale], 0.25 * 3 / 8 + 0.25 / 2);
  EXPECT_EQ(figures[kRightToFemale], 0);
  // Of class 2, three females, one male and two of both; of class 4 one of both.
  EXPECT_EQ(figures[kUnallocatedSides], 0.25 * 8 / 8 + 0.25 * 2 / 2);
  EXPECT_EQ(figures[kRightUnallocatedSides], 0.25 * 5 / 8 + 0.25 * 2 / 2);
}

TEST(GlobalTable, IsAllZeroWhereNothingWasMade) {
  SimulationInput input;
  input.weights = {0.25, 0.5, 0.25};
  const auto table = GlobalTable(NonSexedSimulation(), input, std::vector<IterationCounts>(2));
  EXPECT_EQ(table.rows, std::vector(2, std::vector<double>(8)));
}

Sizes NonSexedSizes(std::int32_t offspring, double collected, double uncollected) {
  SimulationSettings settings;
  settings.offspring_per_iteration = offspring;
  settings.sets[0].uncollected = uncollected;
  return NonSexedSimulation().ClassSizes(settings, std::vector<double>{collected});
}

TEST(ClassSizes, AreTruncatedAndNothingIsMadeUpFor) {
  EXPECT_EQ(NonSexedSizes(10, 2, 6), (Sizes{0, 3, 5}));
  EXPECT_EQ(NonSexedSizes(100, 2, 6), (Sizes{6, 37, 56}));
  EXPECT_EQ(NonSexedSizes(100, 8, 8), (Sizes{25, 50, 25}));
  EXPECT_EQ(NonSexedSizes(10, 4, 4), (Sizes{2, 5, 2}));
  EXPECT_EQ(NonSexedSizes(9, 3, 0), (Sizes{9, 0, 0}));
  EXPECT_EQ(NonSexedSizes(1, 1, 1), (Sizes{0, 0, 0})) << "a run that makes nothing";
  EXPECT_EQ(NonSexedSizes(64, 1.5, 4.5), (Sizes{4, 24, 36})) << "fractions count as typed";

  SimulationSettings settings;
  const auto sexed = [&](std::int32_t offspring, std::array<double, 4> estimated) {
    settings.offspring_per_iteration = offspring;
    settings.sets[0].estimated_collected = estimated[0];
    settings.sets[0].estimated_uncollected = estimated[1];
    settings.sets[1].estimated_collected = estimated[2];
    settings.sets[1].estimated_uncollected = estimated[3];
    return SexedSimulation().ClassSizes(settings, {});
  };
  EXPECT_EQ(sexed(10, {1, 1, 7.5, 7.5}), (Sizes{2, 2, 2, 2}));
  EXPECT_EQ(sexed(8, {3, 0, 5, 0}), (Sizes{8, 0, 0, 0}));
  EXPECT_EQ(sexed(8, {0, 3, 5, 0}), (Sizes{0, 0, 8, 0}));
  EXPECT_EQ(sexed(16, {3, 1, 1, 3}), (Sizes{3, 9, 1, 3}));
  EXPECT_EQ(SexedSimulation().Weights(settings, {}),
            (std::vector<double>{0.1875, 0.5625, 0.0625, 0.1875}));
  settings.sets[0].uncollected = 6;
  EXPECT_EQ(NonSexedSimulation().Weights(settings, std::vector<double>{2}),
            (std::vector<double>{0.0625, 0.375, 0.5625}));
}

}  // namespace
}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
// Two runs side by side against a search through both for every single offspring.
#include "allocation/run_comparison.h"

#include <array>
#include <random>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace kaldo {
namespace {

/// Offspring with few names, so that some share theirs, and parents of four names and UC.
RunStatements RandomRun(std::mt19937& random, Flow flow) {
  static constexpr std::array kParents = {"A", "B", "C", "D", "UC"};
  RunStatements run;
  run.flow = flow;
  run.offspring.resize(random() % 12);
  for (RunStatement& statement : run.offspring) {
    statement.offspring = fmt::format("O{}", random() % 9);
    statement.parents = {kParents.at(random() % 5), kParents.at(random() % 5)};
  }
  return run;
}

/// How many offspring of that name stand before a place.
std::size_t Before(const RunStatements& run, std::size_t place) {
  std::size_t before = 0;
  for (std::size_t k = 0; k < place; ++k) {
    before += run.offspring[k].offspring == run.offspring[place].offspring ? 1U : 0U;
  }
  return before;
}

/// The offspring of the other run that is the same one.
std::optional<std::size_t> SameIn(const RunStatements& other, const RunStatements& run,
                                  std::size_t place) {
  for (std::size_t k = 0; k < other.offspring.size(); ++k) {
    if (other.offspring[k].offspring == run.offspring[place].offspring &&
        Before(other, k) == Before(run, place)) {
      return k;
    }
  }
  return std::nullopt;
}

bool AreTurned(const RunStatement& a, const RunStatement& b) {
  return a.parents != b.parents && a.parents[0] == b.parents[1] && a.parents[1] == b.parents[0];
}

RunComparison SlowComparison(const RunStatements& first, const RunStatements& second) {
  const bool sexed = first.flow == Flow::kSexed && second.flow == Flow::kSexed;
  RunComparison expected;
  for (std::size_t place = 0; place < first.offspring.size(); ++place) {
    const auto same = SameIn(second, first, place);
    expected.offspring.push_back({place, same, false});
    if (!same) {
      ++expected.only_first;
      continue;
    }
    ++expected.in_both;
    const RunStatement& here = first.offspring[place];
    const RunStatement& there = second.offspring[*same];
    if (here.parents != there.parents && (sexed || !AreTurned(here, there))) {
      expected.offspring.back().is_changed = true;
      ++expected.changed;
    }
  }
  for (std::size_t place = 0; place < second.offspring.size(); ++place) {
    if (!SameIn(first, second, place)) {
      expected.offspring.push_back({std::nullopt, place, false});
      ++expected.only_second;
    }
  }
  return expected;
}

TEST(RunComparison, IsThatOfASearchForEveryOffspring) {
  std::mt19937 random(20'261'122);
  std::size_t changed = 0;
  for (int round = 0; round < 1000; ++round) {
    const RunStatements first = RandomRun(random, round % 2 == 0 ? Flow::kSexed : Flow::kNonSexed);
    const RunStatements second = RandomRun(random, round % 3 == 0 ? Flow::kNonSexed : Flow::kSexed);
    const RunComparison expected = SlowComparison(first, second);
    const RunComparison found = Compare(first, second);
    EXPECT_EQ(found.offspring, expected.offspring);
    EXPECT_EQ(found.in_both, expected.in_both);
    EXPECT_EQ(found.changed, expected.changed);
    EXPECT_EQ(found.only_first, expected.only_first);
    EXPECT_EQ(found.only_second, expected.only_second);
    changed += found.changed;
  }
  EXPECT_GT(changed, 100U);
}

TEST(RunComparison, NamesTheFilesThatDiffer) {
  RunStatements first;
  RunStatements second;
  first.files = {{"loci", "loci.txt", {1, "a"}},
                 {"offspring", "o.txt", {2, "b"}},
                 {"known mothers", "m.txt", {3, "c"}}};
  second.files = {{"offspring", "new/o.txt", {2, "d"}},
                  {"loci", "old/loci.txt", {1, "a"}},
                  {"candidates", "c.txt", {4, "e"}}};
  EXPECT_EQ(
      Compare(first, second).other_files,
      (std::vector<std::string>{
          "offspring: o.txt in this run, new/o.txt with other contents in the other one",
          "known mothers: m.txt in this run only", "candidates: c.txt in the other run only"}));
  RunComparison some;
  some.in_both = 50;
  some.changed = 1;
  EXPECT_EQ(ComparisonSentence(some), "1 of 50 offspring of both runs has another pair.");
  some.only_second = 3;
  EXPECT_EQ(
      ComparisonSentence(some),
      "1 of 50 offspring of both runs has another pair; 0 in this run only, 3 in the other one "
      "only.");
}

}  // namespace
}  // namespace kaldo

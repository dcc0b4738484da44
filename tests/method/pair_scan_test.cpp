// SPDX-License-Identifier: GPL-3.0-or-later
// The plain scan against an obvious version of itself, and the rule of the kept pairs step by step.
#include "method/pair_scan.h"

#include <map>
#include <set>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/support/random_study.h"

namespace kaldo {
namespace {

/// What the random studies met, so that the comparison is known to have seen it.
using Coverage = std::map<std::string, int>;

/// A chance to be read as `to`, straight from the sizes.
double Score(const test::RandomStudy& study, std::size_t locus, const LocusGenotype& parent,
             AlleleSize to) {
  const auto place = [&](AlleleSize size) { return study.catalogues[locus].LookUp(size)->Value(); };
  const TransmissionMatrix& matrix = study.matrices[locus];
  return matrix(place(parent.allele1), place(to)) + matrix(place(parent.allele2), place(to));
}

double Likelihood(const test::RandomStudy& study, Slot offspring, ParentPair pair) {
  double product = 0;
  for (std::size_t k = 0; k < study.loci.size(); ++k) {
    const LocusGenotype& child = study.table.Genotype(study.loci[k], offspring);
    double term = 1;
    if (!child.IsMissing()) {
      const LocusGenotype& one = study.table.Genotype(study.loci[k], pair.parent1);
      const LocusGenotype& two = study.table.Genotype(study.loci[k], pair.parent2);
      term = Score(study, k, one, child.allele1) * Score(study, k, two, child.allele2) +
             Score(study, k, one, child.allele2) * Score(study, k, two, child.allele1);
    }
    product = k == 0 ? term : product * term;
  }
  return product;
}

std::string Key(const test::RandomStudy& study, Slot slot) {
  return std::string(study.table.Name(slot).Text().substr(0, 10));
}

struct Found {
  std::vector<ParentPair> pairs;
  bool more_than_five = false;
  double best = 0;
};

/// The search written down as it is told, without any thought of speed.
Found SlowSearch(const test::RandomStudy& study, Slot offspring, Coverage& coverage) {
  Found found;
  const bool sexed = study.flow == Flow::kSexed;
  for (std::uint32_t i = 0; i < study.males; ++i) {
    for (std::uint32_t j = sexed ? study.males : i + 1; j < study.parents; ++j) {
      const ParentPair pair{Slot{i}, Slot{j}};
      const double likelihood = Likelihood(study, offspring, pair);
      if (likelihood > found.best) {
        coverage[found.more_than_five ? "better after the mark" : "better"]++;
        found.pairs = {pair};
        found.best = likelihood;
        continue;
      }
      bool duplicate = false;
      for (const ParentPair& kept : found.pairs) {
        const std::string a = Key(study, pair.parent1);
        const std::string b = Key(study, pair.parent2);
        const std::string c = Key(study, kept.parent1);
        const std::string d = Key(study, kept.parent2);
        duplicate = duplicate || (a == c && b == d) || (!sexed && a == d && b == c);
      }
      if (likelihood != found.best || likelihood == 0) {
        continue;
      }
      if (duplicate) {
        coverage["duplicate"]++;
      } else if (found.pairs.size() == 5) {
        coverage["sixth pair"]++;
        found.more_than_five = true;
        break;
      } else {
        coverage["tie"]++;
        found.pairs.push_back(pair);
      }
    }
  }
  coverage[found.pairs.empty() ? "no pair" : "pair"]++;
  return found;
}

TEST(PairScan, FindsWhatTheObviousSearchFinds) {
  ErrorModel no_error;
  no_error.kind = ErrorKind::kNoError;
  ErrorModel uniform;
  uniform.kind = ErrorKind::kUniform;
  uniform.epsilon = 0.02;
  ErrorModel negative = uniform;
  negative.epsilon = -0.3;
  const std::vector<ErrorModel> models = {ErrorModel{}, no_error, uniform, negative};

  test::RandomStudyMaker maker(20260301);
  Coverage coverage;
  const RunObserver observer;
  for (int round = 0; round < 4000; ++round) {
    const test::RandomStudy study =
        maker.Make(models[static_cast<std::size_t>(round) % models.size()], {});
    TransmissionScores scores(study.loci.size(), study.parents);
    const Candidates candidates{study.flow, study.groups, study.table.Names()};
    for (auto slot = study.parents; slot < study.table.NumberOfIndividuals(); ++slot) {
      ComputeTransmissionScores(study.table, Slot{slot}, study.loci, study.matrices, scores);
      const AllocationOutcome outcome = ScanPairs(scores, candidates, observer);
      const Found found = SlowSearch(study, Slot{slot}, coverage);
      ASSERT_EQ(std::vector<ParentPair>(outcome.Pairs().begin(), outcome.Pairs().end()),
                found.pairs)
          << "round " << round;
      ASSERT_EQ(outcome.more_than_five, found.more_than_five) << "round " << round;
      ASSERT_EQ(outcome.best_likelihood, found.best) << "round " << round;
    }
  }
  for (const std::string met :
       {"better", "better after the mark", "duplicate", "sixth pair", "tie", "no pair", "pair"}) {
    EXPECT_GT(coverage[met], 20) << met;
  }
}

/// Parents whose names differ in the first ten bytes, so that no pair is a duplicate.
std::vector<IndividualName> Names(std::size_t count) {
  std::vector<IndividualName> names;
  for (std::size_t i = 0; i < count; ++i) {
    names.emplace_back(fmt::format("P{}", i));
  }
  return names;
}

ParentPair Pair(std::uint32_t parent1, std::uint32_t parent2) {
  return {Slot{parent1}, Slot{parent2}};
}

TEST(KeptPairs, KeepsFiveTiesLeavesTheRowAtTheSixthAndNeverTakesTheMarkBack) {
  const auto names = Names(10);
  KeptPairs kept(Flow::kNonSexed, names);
  EXPECT_FALSE(kept.Matters(0.0));
  for (std::uint32_t partner = 1; partner <= 5; ++partner) {
    EXPECT_EQ(kept.Show(Pair(0, partner), 0.25), AfterPair::kGoOn);
  }
  EXPECT_FALSE(kept.MoreThanFive());
  EXPECT_EQ(kept.Show(Pair(0, 6), 0.25), AfterPair::kLeaveRow);
  EXPECT_TRUE(kept.MoreThanFive());
  EXPECT_EQ(kept.Pairs().size(), 5U);
  EXPECT_EQ(kept.Show(Pair(1, 2), 0.5), AfterPair::kGoOn);
  EXPECT_EQ(kept.Pairs().size(), 1U);
  EXPECT_TRUE(kept.MoreThanFive());
  EXPECT_FALSE(kept.Matters(0.25));
}

TEST(KeptPairs, TakesIndividualsOfTheSameTenBytesForOne) {
  const std::vector<IndividualName> names = {
      IndividualName("Sample00001_a"), IndividualName("Sample0002"),
      IndividualName("Sample00001_b"), IndividualName("Sample0002x")};
  // 0 and 2 share ten bytes, 1 and 3 too.
  KeptPairs unordered(Flow::kNonSexed, names);
  unordered.Show(Pair(0, 1), 0.5);
  unordered.Show(Pair(1, 2), 0.5);
  unordered.Show(Pair(2, 3), 0.5);
  EXPECT_EQ(unordered.Pairs().size(), 1U);
  unordered.Show(Pair(0, 2), 0.5);
  EXPECT_EQ(unordered.Pairs().size(), 2U);

  KeptPairs ordered(Flow::kSexed, names);
  ordered.Show(Pair(0, 1), 0.5);
  ordered.Show(Pair(1, 2), 0.5);
  EXPECT_EQ(ordered.Pairs().size(), 2U) << "male and female exchanged are another pair";
  ordered.Show(Pair(2, 3), 0.5);
  EXPECT_EQ(ordered.Pairs().size(), 2U);
}

TEST(CandidateGroups, SeparatorsAtTheEndsAndInARowMakeEmptyGroups) {
  GenotypeTable table(1);
  for (const char* name : {"*", "A", "B", "*pond", "**", "C", "*"}) {
    table.AddIndividual(name);
  }
  const std::vector<SlotRange> expected = {{0, 0}, {1, 3}, {4, 4}, {5, 6}, {7, 7}};
  EXPECT_EQ(CutAtSeparators(table, {0, 7}), expected);
  EXPECT_EQ(PartnersOf(Flow::kNonSexed, {{1, 3}, {1, 3}}, 1), (SlotRange{2, 3}));
  EXPECT_EQ(PartnersOf(Flow::kSexed, {{1, 3}, {5, 6}}, 2), (SlotRange{5, 6}));
}

}  // namespace
}  // namespace kaldo

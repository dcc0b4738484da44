// SPDX-License-Identifier: GPL-3.0-or-later
// The production search against the plain scan, bit for bit, over a hundred thousand searches.
#include "search/pair_searcher.h"

#include <algorithm>
#include <bit>
#include <hwy/targets.h>
#include <map>

#include <gtest/gtest.h>

#include "search/cost_kernels.h"
#include "tests/support/random_study.h"
#include "tests/support/search_support.h"

namespace kaldo {
namespace {

using test::RandomStudy;
using test::RandomStudyMaker;
using test::StudyShape;

ErrorModel NoError() {
  ErrorModel model;
  model.kind = ErrorKind::kNoError;
  return model;
}

ErrorModel Uniform(double epsilon) {
  ErrorModel model;
  model.kind = ErrorKind::kUniform;
  model.epsilon = epsilon;
  return model;
}

ErrorModel NonUniform(double outer, double inner) {
  ErrorModel model;
  model.minus2 = model.plus2 = outer;
  model.minus1 = model.plus1 = inner;
  model.focal = 1 - 2 * outer - 2 * inner;
  return model;
}

/// What the searches met, so that the comparison is known to have seen it.
using Coverage = std::map<std::string, int>;

void CoverSearch(const AllocationOutcome& outcome, Coverage& coverage) {
  const auto pairs = outcome.Pairs().size();
  ++coverage[pairs == 0 ? "no pair" : pairs == 1 ? "one pair" : "tie"];
  coverage["mark"] += outcome.more_than_five ? 1 : 0;
  coverage["better pair after the mark"] += outcome.more_than_five && pairs < 5 ? 1 : 0;
  coverage["near the smallest number"] += pairs > 0 && outcome.best_likelihood < 0x1p-900 ? 1 : 0;
}

/// The parents that have something to give at every locus.
std::size_t PossibleParents(const TransmissionScores& scores, std::uint32_t parents) {
  std::size_t possible = 0;
  for (std::uint32_t parent = 0; parent < parents; ++parent) {
    bool all = true;
    for (std::size_t k = 0; k < scores.Loci(); ++k) {
      all = all && (scores.R(k)[parent] != 0 || scores.J(k)[parent] != 0);
    }
    possible += all ? 1 : 0;
  }
  return possible;
}

std::string ShareOfParents(std::size_t possible, std::size_t parents) {
  if (possible <= 3) {
    return possible < 2 ? "fewer than two possible parents" : "two or three possible parents";
  }
  if (possible == parents) {
    return "all parents possible";
  }
  const std::size_t percent = possible * 100 / parents;
  return percent < 12 ? "few parents possible" : percent < 75 ? "many possible" : "most possible";
}

void CompareSearches(const RandomStudy& study, PairSearcher& searcher, Coverage& coverage) {
  const RunObserver observer;
  const Candidates candidates{study.flow, study.groups, study.table.Names()};
  TransmissionScores scores(study.loci.size(), study.parents);
  test::Prepare(searcher, study, candidates);
  for (auto i = study.parents; i < study.table.NumberOfIndividuals(); ++i) {
    const Slot offspring{i};
    ComputeTransmissionScores(study.table, offspring, study.loci, study.matrices, scores);
    const AllocationOutcome scan = ScanPairs(scores, candidates, observer);
    const AllocationOutcome search = searcher.Search(offspring, observer);
    ASSERT_NO_FATAL_FAILURE(test::ExpectSame(search, scan));
    CoverSearch(scan, coverage);
    if (study.parents > 100) {
      ++coverage[ShareOfParents(PossibleParents(scores, study.parents), study.parents)];
    }
    bool all_missing = true;
    for (const LocusIndex locus : study.loci) {
      all_missing = all_missing && study.table.Genotype(locus, offspring).IsMissing();
    }
    coverage["all loci missing"] += all_missing ? 1 : 0;
  }
  const auto genotypes = study.table.Locus(LocusIndex{0}).first(study.parents);
  const auto undefined = std::count_if(genotypes.begin(), genotypes.end(),
                                       [](const LocusGenotype& one) { return one.IsMissing(); });
  coverage["undefined parents"] += undefined > 3 ? 1 : 0;
  coverage["several groups"] += study.groups.size() > 1 ? 1 : 0;
  coverage[study.flow == Flow::kSexed ? "sexed" : "non-sexed"] += 1;
}

/// Runs studies of one shape over all models, with one searcher that is prepared again and again.
void CompareShape(const StudyShape& shape, int studies, unsigned seed, Coverage& coverage,
                  std::size_t bytes = GenotypeBounds::kBytes) {
  // With 1e-81, 1e-108 and 1e-162 a few mismatches lead to the smallest numbers there are.
  const std::vector<ErrorModel> models = {
      NoError(),          Uniform(0.02),     Uniform(0.1),         Uniform(1e-12),
      Uniform(1e-81),     Uniform(1e-108),   Uniform(1e-162),      Uniform(-0.3),
      Uniform(-5),        ErrorModel{},      NonUniform(0.02, 0),  NonUniform(0, 1e-60),
      NonUniform(0.1, 0), NonUniform(0, .2), NonUniform(1e-90, .2)};
  RandomStudyMaker maker(seed);
  PairSearcher searcher(bytes);
  for (int round = 0; round < studies; ++round) {
    SCOPED_TRACE(round);
    const auto model = static_cast<std::size_t>(round) % models.size();
    CompareSearches(maker.Make(models[model], shape), searcher, coverage);
    if (testing::Test::HasFatalFailure()) {
      return;
    }
  }
  const PairSearcher::Work& work = searcher.WorkDone();
  coverage["answered without a pair"] += static_cast<int>(work.without_two_parents);
  coverage["answered from three parents"] += static_cast<int>(work.among_three);
  coverage["rows scanned plainly"] += static_cast<int>(work.plain_rows);
}

void ExpectMet(Coverage& coverage, const std::vector<std::string>& what, int often) {
  for (const std::string& one : what) {
    EXPECT_GE(coverage[one], often) << one;
  }
}

TEST(PairSearcher, FindsWhatTheScanFindsInSmallStudies) {
  Coverage coverage;
  CompareShape({.parents = 70, .loci = 3, .alleles = 3, .offspring = 8, .groups = true}, 30'000, 1,
               coverage);
  CompareShape({.parents = 90,
                .loci = 6,
                .alleles = 6,
                .offspring = 8,
                .groups = true,
                .bred_offspring = true,
                .undefined_parents = true},
               15'000, 2, coverage);
  ExpectMet(coverage,
            {"no pair", "one pair", "tie", "mark", "better pair after the mark", "all loci missing",
             "several groups", "sexed", "non-sexed", "undefined parents"},
            100);
}

TEST(PairSearcher, FindsWhatTheScanFindsAmongManyParents) {
  Coverage coverage;
  CompareShape({.parents = 500,
                .loci = 24,
                .alleles = 12,
                .offspring = 6,
                .groups = true,
                .bred_offspring = true,
                .undefined_parents = true},
               450, 3, coverage);
  CompareShape({.parents = 300,
                .loci = 8,
                .alleles = 12,
                .offspring = 12,
                .groups = true,
                .bred_offspring = true,
                .undefined_parents = true},
               450, 4, coverage);
  CompareShape({.parents = 200,
                .loci = 50,
                .alleles = 40,
                .offspring = 4,
                .groups = true,
                .bred_offspring = true},
               300, 5, coverage);
  CompareShape({.parents = 2'600,
                .loci = 16,
                .alleles = 14,
                .offspring = 3,
                .groups = true,
                .bred_offspring = true},
               90, 8, coverage);
  ExpectMet(
      coverage,
      {"one pair", "tie", "mark", "several groups", "undefined parents", "near the smallest number",
       "fewer than two possible parents", "two or three possible parents", "few parents possible",
       "many possible", "most possible", "all parents possible", "answered without a pair",
       "answered from three parents", "rows scanned plainly"},
      10);
}

/// No memory for bounds but those of one offspring: they start anew with each.
TEST(PairSearcher, FindsTheSameInLittleMemory) {
  Coverage coverage;
  CompareShape({.parents = 150,
                .loci = 12,
                .alleles = 12,
                .offspring = 6,
                .groups = true,
                .bred_offspring = true},
               150, 9, coverage, 0);
  ExpectMet(coverage, {"one pair", "tie", "many possible", "all parents possible"}, 10);
}

/// The narrowest vectors that this machine knows give the same, so that a laptop agrees with a
/// cluster; also among so many parents that a row of their bits fills several vectors.
TEST(PairSearcher, FindsTheSameWithEveryKindOfVector) {
  for (const auto target : hwy::SupportedAndGeneratedTargets()) {
    SCOPED_TRACE(hwy::TargetName(target));
    hwy::SetSupportedTargetsForTest(target);
    Coverage coverage;
    CompareShape({.parents = 150,
                  .loci = 12,
                  .alleles = 12,
                  .offspring = 6,
                  .groups = true,
                  .bred_offspring = true},
                 60, 6, coverage);
    CompareShape({.parents = 1'200,
                  .loci = 12,
                  .alleles = 14,
                  .offspring = 4,
                  .groups = true,
                  .bred_offspring = true},
                 30, 7, coverage);
    ExpectMet(coverage, {"one pair", "tie", "few parents possible", "many possible"}, 3);
  }
  hwy::SetSupportedTargetsForTest(0);
}

/// Few bits, anywhere, among fewer words than a vector holds and more.
TEST(CostKernels, TellWhetherTwoParentsAreLeft) {
  RandomStudyMaker random(10);
  for (const auto target : hwy::SupportedAndGeneratedTargets()) {
    hwy::SetSupportedTargetsForTest(target);
    for (int round = 0; round < 3'000; ++round) {
      const std::uint32_t words = random.Draw(1, 40);
      std::vector<std::uint64_t> all(words);
      for (std::uint32_t bits = random.Draw(0, 3); bits > 0; --bits) {
        all[random.Draw(0, words - 1)] |= std::uint64_t{1} << random.Draw(0, 63);
      }
      int left = 0;
      for (const std::uint64_t word : all) {
        left += std::popcount(word);
      }
      const std::vector<std::uint64_t> everybody(words, ~std::uint64_t{0});
      const std::vector<std::uint64_t> nobody(words);
      const std::vector<GiverRows> loci(random.Draw(1, 3), {everybody.data(), nobody.data()});
      const std::vector<std::uint64_t> before = all;
      EXPECT_EQ(KeepCommon(all.data(), loci, all), left >= 2);
      EXPECT_EQ(all, before);
    }
  }
  hwy::SetSupportedTargetsForTest(0);
}

}  // namespace
}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
// Search and scan among the allowed pairs of an offspring, bit for bit, against a walk over all
// pairs that asks of each whether it is allowed.
#include "method/allowed_pairs.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "search/pair_searcher.h"
#include "tests/support/random_allowed_pairs.h"
#include "tests/support/search_support.h"

namespace kaldo {
namespace {

using test::Coverage;
using test::DrawAllowed;
using test::RandomStudy;
using test::RandomStudyMaker;

bool Holds(SlotRange range, Slot slot) {
  return range.begin <= slot.Value() && slot.Value() < range.end;
}

bool IsAllowed(const AllowedPairs& allowed, std::size_t group, ParentPair pair) {
  const auto is_candidate = [&](Slot slot) {
    return !allowed.candidates ||
           std::count(allowed.candidates->begin(), allowed.candidates->end(), slot) == 1;
  };
  return (!allowed.group || *allowed.group == group) && is_candidate(pair.parent1) &&
         is_candidate(pair.parent2) &&
         (!allowed.known_parent || pair.parent1 == *allowed.known_parent ||
          pair.parent2 == *allowed.known_parent);
}

double Likelihood(const TransmissionScores& scores, ParentPair pair) {
  const std::size_t one = pair.parent1.Value();
  const std::size_t two = pair.parent2.Value();
  double product = 1;
  for (std::size_t k = 0; k < scores.Loci(); ++k) {
    product *= scores.R(k)[one] * scores.J(k)[two] + scores.J(k)[one] * scores.R(k)[two];
  }
  return product;
}

AllocationOutcome SlowSearch(const RandomStudy& study, const TransmissionScores& scores,
                             const AllowedPairs& allowed, std::uint64_t& pairs) {
  KeptPairs kept(study.flow, study.table.Names());
  for (std::size_t group = 0; group < study.groups.size(); ++group) {
    for (std::uint32_t i = 0; i < study.parents; ++i) {
      for (std::uint32_t j = i + 1; j < study.parents; ++j) {
        const ParentPair pair{Slot{i}, Slot{j}};
        if (!Holds(study.groups[group].first, pair.parent1) ||
            !Holds(study.groups[group].second, pair.parent2) || !IsAllowed(allowed, group, pair)) {
          continue;
        }
        ++pairs;
        const double likelihood = Likelihood(scores, pair);
        if (kept.Matters(likelihood) && kept.Show(pair, likelihood) == AfterPair::kLeaveRow) {
          break;
        }
      }
    }
  }
  return OutcomeOf(kept);
}

void Compare(const RandomStudy& study, RandomStudyMaker& random, PairSearcher& searcher,
             Coverage& coverage) {
  const RunObserver observer;
  const Candidates candidates{study.flow, study.groups, study.table.Names()};
  TransmissionScores scores(study.loci.size(), study.parents);
  test::Prepare(searcher, study, candidates);
  for (auto i = study.parents; i < study.table.NumberOfIndividuals(); ++i) {
    const Slot offspring{i};
    ComputeTransmissionScores(study.table, offspring, study.loci, study.matrices, scores);
    const AllowedPairs allowed = DrawAllowed(study, random, coverage);
    std::uint64_t pairs = 0;
    const AllocationOutcome slow = SlowSearch(study, scores, allowed, pairs);
    ASSERT_NO_FATAL_FAILURE(
        test::ExpectSame(ScanPairs(scores, candidates, allowed, observer), slow));
    ASSERT_NO_FATAL_FAILURE(test::ExpectSame(searcher.Search(offspring, allowed, observer), slow));
    // What was allowed to one offspring must not stay for the next.
    ASSERT_NO_FATAL_FAILURE(test::ExpectSame(searcher.Search(offspring, observer),
                                             ScanPairs(scores, candidates, observer)));
    ASSERT_EQ(HasPair(study.flow, study.groups, allowed), pairs > 0);
    ++coverage[pairs == 0 ? "no pair allowed" : pairs < 20 ? "few allowed" : "many allowed"];
    coverage["tie"] += slow.Pairs().size() > 1 ? 1 : 0;
    coverage["mark"] += slow.more_than_five ? 1 : 0;
    coverage["another pair than among all"] +=
        slow.best_likelihood < ScanPairs(scores, candidates, observer).best_likelihood ? 1 : 0;
  }
}

TEST(AllowedPairs, AreAllThatSearchAndScanLookAt) {
  const std::vector<ErrorModel> models = test::ModelsOfEveryKind();
  RandomStudyMaker random(11);
  PairSearcher searcher;
  Coverage coverage;
  for (std::size_t round = 0; round < 3'000 && !testing::Test::HasFatalFailure(); ++round) {
    SCOPED_TRACE(round);
    const bool large = round % 10 == 0;
    const test::StudyShape shape{.parents = large ? 300U : 90U,
                                 .loci = large ? 10U : 5U,
                                 .alleles = large ? 10U : 5U,
                                 .offspring = 8,
                                 .groups = true,
                                 .bred_offspring = true};
    Compare(random.Make(models[round / 10 % models.size()], shape), random, searcher, coverage);
  }
  coverage["rows scanned plainly"] += static_cast<int>(searcher.WorkDone().plain_rows);
  coverage["answered from three parents"] += static_cast<int>(searcher.WorkDone().among_three);
  for (const std::string met :
       {"group", "known parent", "candidates", "candidates with a known parent", "no pair allowed",
        "few allowed", "many allowed", "tie", "mark", "another pair than among all",
        "rows scanned plainly", "answered from three parents"}) {
    EXPECT_GT(coverage[met], 100) << met;
  }
}

}  // namespace
}  // namespace kaldo

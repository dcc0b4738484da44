// SPDX-License-Identifier: GPL-3.0-or-later
// The sums over the pairs worth a look against all pairs, multiplied out one by one.
#include "search/pair_sums.h"

#include <algorithm>
#include <cmath>
#include <map>

#include <gtest/gtest.h>

#include "method/transmission_scores.h"
#include "tests/support/random_study.h"

namespace kaldo {
namespace {

using test::RandomStudy;
using test::RandomStudyMaker;
using test::StudyShape;

struct WeighedPair {
  ParentPair pair;
  double likelihood;
};

std::vector<WeighedPair> AllPairs(const RandomStudy& study, Slot offspring) {
  TransmissionScores scores(study.loci.size(), study.parents);
  ComputeTransmissionScores(study.table, offspring, study.loci, study.matrices, scores);
  std::vector<WeighedPair> pairs;
  for (const CandidateGroup& group : study.groups) {
    for (std::uint32_t one = group.first.begin; one < group.first.end; ++one) {
      const SlotRange partners = PartnersOf(study.flow, group, one);
      for (std::uint32_t two = partners.begin; two < partners.end; ++two) {
        double product = 1;
        for (std::size_t k = 0; k < scores.Loci(); ++k) {
          product *= scores.R(k)[one] * scores.J(k)[two] + scores.J(k)[one] * scores.R(k)[two];
        }
        pairs.push_back({{Slot{one}, Slot{two}}, product});
      }
    }
  }
  return pairs;
}

BestPair BestOf(const std::vector<WeighedPair>& pairs) {
  BestPair best;
  for (const WeighedPair& one : pairs) {
    if (one.likelihood > best.likelihood) {
      best = {one.pair, one.likelihood, best.likelihood, 1};
    } else if (one.likelihood == best.likelihood && one.likelihood > 0) {
      best.second = one.likelihood;
      ++best.pairs;
    } else {
      best.second = std::max(best.second, one.likelihood);
    }
  }
  return best;
}

/// What must be in the sums: pairs at the limit or above it; what may be: all pairs.
struct Bounds {
  double least = 0;
  double most = 0;
};

std::map<Slot, Bounds> BoundsByParent(const RandomStudy& study,
                                      const std::vector<WeighedPair>& pairs, double limit,
                                      bool second) {
  std::map<Slot, Bounds> bounds;
  for (const WeighedPair& one : pairs) {
    const bool all = study.flow == Flow::kNonSexed;
    for (const Slot slot : {one.pair.parent1, one.pair.parent2}) {
      if (all || slot == (second ? one.pair.parent2 : one.pair.parent1)) {
        bounds[slot].most += one.likelihood;
        bounds[slot].least += one.likelihood >= limit ? one.likelihood : 0;
      }
    }
  }
  return bounds;
}

void ExpectSums(std::span<const ParentSum> sums, const std::map<Slot, Bounds>& bounds) {
  std::map<Slot, double> by_slot;
  for (const ParentSum& one : sums) {
    EXPECT_TRUE(by_slot.emplace(one.parent, one.sum).second) << "a parent stands there twice";
  }
  for (const auto& [slot, bound] : bounds) {
    EXPECT_GE(by_slot[slot], bound.least * (1 - 1e-12));
    EXPECT_LE(by_slot[slot], bound.most * (1 + 1e-12));
  }
  for (const auto& [slot, sum] : by_slot) {
    EXPECT_TRUE(bounds.count(slot) == 1) << "no parent of a pair";
  }
}

/// The likeliest pairs in the order of the file, however many are equally likely where the list
/// ends; those below the limit may be missing.
void ExpectList(std::span<const PairLikelihood> listed, std::vector<WeighedPair> pairs,
                double limit, std::size_t most) {
  std::stable_sort(pairs.begin(), pairs.end(), [](const WeighedPair& a, const WeighedPair& b) {
    return a.likelihood > b.likelihood;
  });
  for (std::size_t k = 0; k < std::min(most, pairs.size()); ++k) {
    if (pairs[k].likelihood < limit || pairs[k].likelihood == 0) {
      return;
    }
    ASSERT_LT(k, listed.size());
    EXPECT_EQ(listed[k].pair, pairs[k].pair);
    EXPECT_EQ(listed[k].likelihood, pairs[k].likelihood);
  }
  EXPECT_LE(listed.size(), most);
}

/// A limit that leaves out few pairs, some, most or all of them.
double SomeLimit(RandomStudyMaker& random, const BestPair& best) {
  constexpr std::array<double, 6> kShares = {1e-30, 1e-9, 1e-3, 0.5, 1.0, 2.0};
  return std::max(best.likelihood, 1e-250) * kShares[random.Draw(0, kShares.size() - 1)];
}

void CompareStudy(const RandomStudy& study, RandomStudyMaker& random, PairSums& sums, int& looks) {
  const RunObserver observer;
  sums.Prepare({study.table, study.parents, study.loci, study.matrices}, study.flow, study.groups);
  const std::vector<double> ones(study.loci.size(), 1.0);
  for (auto i = study.parents; i < study.table.NumberOfIndividuals(); ++i) {
    bool typed = false;
    for (const LocusIndex locus : study.loci) {
      typed = typed || !study.table.Genotype(locus, Slot{i}).IsMissing();
    }
    if (!typed) {
      continue;
    }
    const auto pairs = AllPairs(study, Slot{i});
    const BestPair best = BestOf(pairs);
    const double limit = SomeLimit(random, best);
    sums.GoTo(Slot{i}, ones);
    const std::size_t most = random.Draw(1, 9);
    sums.SumUp(limit, most, observer);
    ExpectList(sums.MostLikely(), pairs, limit, most);
    ExpectSums(sums.SumsOfFirst(), BoundsByParent(study, pairs, limit, false));
    if (study.flow == Flow::kSexed) {
      ExpectSums(sums.SumsOfSecond(), BoundsByParent(study, pairs, limit, true));
    }
    const BestPair found = sums.FindBest(observer);
    ASSERT_EQ(found.likelihood, best.likelihood);
    ASSERT_EQ(found.second, best.second);
    ASSERT_EQ(found.pairs, best.pairs);
    if (best.pairs > 0) {
      ASSERT_EQ(found.pair, best.pair);
    }
    ++looks;
  }
}

TEST(PairSums, HoldEveryPairAboveTheLimitAndFindTheBestTwo) {
  ErrorModel uniform;
  uniform.kind = ErrorKind::kUniform;
  uniform.epsilon = 0.02;
  ErrorModel tiny = uniform;
  tiny.epsilon = 1e-30;
  ErrorModel none;
  none.kind = ErrorKind::kNoError;
  RandomStudyMaker random(11);
  PairSums sums;
  int looks = 0;
  for (int round = 0; round < 1'500; ++round) {
    SCOPED_TRACE(round);
    const std::array<ErrorModel, 4> models = {uniform, tiny, none, ErrorModel{}};
    const StudyShape shape = round % 10 == 0 ? StudyShape{400, 14, 10, 3, true, true, true}
                                             : StudyShape{40, 5, 5, 6, true, round % 2 == 0, true};
    CompareStudy(random.Make(models[static_cast<std::size_t>(round) % 4], shape), random, sums,
                 looks);
    if (HasFailure()) {
      return;
    }
  }
  EXPECT_GT(looks, 3'000);
}

}  // namespace
}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
// Posterior probabilities against the plain sum over all pairs, and against truth.
#include "confidence/confidence_run.h"

#include <map>
#include <random>

#include <gtest/gtest.h>

#include "tests/confidence/known_parents.h"
#include "tests/confidence/plain_confidence.h"
#include "tests/confidence/plain_relatives.h"
#include "tests/confidence/study_runs.h"
#include "tests/support/random_allowed_pairs.h"

namespace kaldo {
namespace {

using test::Assignments;
using test::Compute;
using test::Coverage;
using test::DrawAllowed;
using test::InputOf;
using test::KnownParents;
using test::NoError;
using test::PlainConfidence;
using test::PlainRelatives;
using test::RandomStudy;
using test::RandomStudyMaker;
using test::StudyShape;
using test::Uniform;

// Pairs and candidates left out have less than this share of the evidence of each offspring.
constexpr double kTolerance = 1e-6;

/// Compares one offspring with the plain sums.
class Comparison {
 public:
  Comparison(const ConfidenceInput& input, const PlainConfidence& plain, Assignments all,
             std::size_t offspring, const OffspringConfidence& found)
      : sexed_(input.flow == Flow::kSexed),
        plain_(plain),
        all_(std::move(all)),
        offspring_(offspring),
        found_(found) {}

  void Compare(Coverage& coverage) const {
    for (const Explanation k : kAllExplanations) {
      EXPECT_NEAR(found_.p_explanation[k], P(k), kTolerance);
    }
    CompareSides(coverage);
    CompareBestAssignment();
    CompareBestPair(coverage);
    coverage["nothing typed"] += found_.is_typed ? 0 : 1;
  }

 private:
  double P(Explanation k) const {
    long double sum = 0;
    for (const auto& [assignment, probability] : all_) {
      sum += assignment.first == k ? probability : 0;
    }
    return static_cast<double>(sum);
  }

  /// The probability of every candidate: of a side, or in the non-sexed flow of any.
  std::map<Slot, long double> Candidates(std::size_t side) const {
    std::map<Slot, long double> sums;
    for (const auto& [assignment, probability] : all_) {
      for (std::size_t i = 0; i < 2; ++i) {
        if (assignment.second[i] && (i == side || !sexed_)) {
          sums[*assignment.second[i]] += probability;
        }
      }
    }
    return sums;
  }

  /// The n-th candidate in order of probability, counted from 0; its own probability must be right
  /// too. Candidates are many with the same one.
  void ExpectCandidate(std::size_t side, std::size_t n,
                       const std::optional<ProbableParent>& found) const {
    auto candidates = Candidates(side);
    std::vector<double> sorted;
    for (const auto& one : candidates) {
      sorted.push_back(static_cast<double>(one.second));
    }
    std::sort(sorted.rbegin(), sorted.rend());
    ASSERT_EQ(found.has_value(), n < sorted.size());
    if (found) {
      EXPECT_NEAR(found->probability, sorted[n], kTolerance);
      ASSERT_EQ(candidates.count(found->slot), 1);
      EXPECT_NEAR(found->probability, static_cast<double>(candidates[found->slot]), kTolerance);
    }
  }

  void CompareSides(Coverage& coverage) const {
    for (std::size_t side = 0; side < 2; ++side) {
      const SideConfidence& one = found_.sides[side];
      ExpectCandidate(side, sexed_ ? 0 : side, one.candidate);
      ExpectCandidate(side, sexed_ ? 1 : 2, one.runner_up);
      const Explanation other = side == 0 && sexed_ ? Explanation::kSecond : Explanation::kFirst;
      EXPECT_NEAR(one.p_uncollected, P(Explanation::kNone) + (sexed_ || side == 1 ? P(other) : 0),
                  kTolerance);
      ++coverage[std::string(Label(one.verdict))];
      coverage["alike"] += one.alike > 1 ? 1 : 0;
    }
  }

  void CompareBestAssignment() const {
    long double best = 0;
    for (const auto& one : all_) {
      best = std::max(best, one.second);
    }
    ASSERT_EQ(all_.count({found_.best_explanation, found_.best}), 1);
    const long double own = all_.at({found_.best_explanation, found_.best});
    EXPECT_NEAR(found_.p_best, static_cast<double>(best), kTolerance);
    EXPECT_NEAR(found_.p_best, static_cast<double>(own), kTolerance);
  }

  void CompareBestPair(Coverage& coverage) const {
    std::vector<PlainConfidence::Number> pairs;
    PlainConfidence::Number strangers = 0;
    for (const auto& way : plain_.Ways(offspring_)) {
      if (way.explanation == Explanation::kBoth) {
        pairs.push_back(way.likelihood);
      } else if (way.explanation == Explanation::kNone) {
        strangers = way.likelihood;
      }
    }
    std::sort(pairs.rbegin(), pairs.rend());
    // Pairs this far below strangers have no digits left in doubles.
    if (!pairs.empty() && pairs[std::min<std::size_t>(pairs.size(), 2) - 1] < strangers * 1e-200L) {
      ++coverage["pairs near the smallest number"];
      return;
    }
    if (pairs.size() < 2) {
      EXPECT_EQ(found_.tied_pairs, pairs.size());
      EXPECT_FALSE(found_.ln_best_second);
      ++coverage["fewer than two pairs"];
      return;
    }
    ASSERT_TRUE(found_.ln_best_second);
    EXPECT_NEAR(*found_.ln_best_second, static_cast<double>(std::log(pairs[0] / pairs[1])), 1e-9);
    // Doubles may tell pairs apart that only rounding does.
    EXPECT_GE(found_.tied_pairs, 1U);
    EXPECT_LE(found_.tied_pairs, std::count_if(pairs.begin(), pairs.end(), [&](auto likelihood) {
                return likelihood > pairs[0] * (1 - 1e-12L);
              }));
    coverage["tied pairs"] += found_.tied_pairs > 1 ? 1 : 0;
  }

  bool sexed_;
  const PlainConfidence& plain_;
  Assignments all_;
  std::size_t offspring_;
  const OffspringConfidence& found_;
};

void CompareWithRelatives(const ConfidenceInput& input, const ErrorModel& model,
                          const PlainConfidence& plain, Coverage& coverage) {
  const PlainRelatives with_sibs(plain, input, true);
  const PlainRelatives without(plain, input, false);
  const ConfidenceResult result = Compute(model, input, 1, true);
  EXPECT_NEAR(result.shares.collected, static_cast<double>(with_sibs.Collected()), kTolerance);
  EXPECT_NEAR(*result.sibs_of_candidates, static_cast<double>(with_sibs.Sibs()), kTolerance);
  EXPECT_NEAR(*result.relatives_gain,
              static_cast<double>(with_sibs.LogLikelihood() - without.LogLikelihood()), 1e-4);
  for (std::size_t i = 0; i < result.offspring.size(); ++i) {
    Comparison(input, plain, with_sibs.All(i), i, result.offspring[i]).Compare(coverage);
  }
  coverage["relatives"] += 1;
}

void CompareStudy(const RandomStudy& study, const ErrorModel& model, Coverage& coverage,
                  std::span<const AllowedPairs> allowed = {}) {
  ConfidenceInput input = InputOf(study);
  input.allowed = allowed;
  const PlainConfidence plain(model, input);
  const ConfidenceResult result = Compute(model, input);
  ASSERT_EQ(result.offspring.size(), input.offspring.Size());
  for (std::size_t k = 0; k < 4; ++k) {
    EXPECT_NEAR(result.shares.theta[kAllExplanations[k]], static_cast<double>(plain.Theta()[k]),
                kTolerance);
  }
  for (std::size_t i = 0; i < result.offspring.size(); ++i) {
    Comparison(input, plain, plain.All(i), i, result.offspring[i]).Compare(coverage);
  }
  if (input.table.NumberOfIndividuals() < 30) {
    CompareWithRelatives(input, model, plain, coverage);
  }
  coverage["several groups"] += study.groups.size() > 1 ? 1 : 0;
  coverage["gathered again"] += result.gatherings > 1 ? 1 : 0;
  coverage["no pair at all"] += result.ways[Explanation::kBoth] == 0 ? 1 : 0;
  coverage["one offspring"] += result.offspring.size() == 1 ? 1 : 0;
  coverage[study.flow == Flow::kSexed ? "sexed" : "non-sexed"] += 1;
}

TEST(Confidence, IsThePlainSumOverAllPairs) {
  const std::vector<ErrorModel> models = {NoError(),      Uniform(0.01),   Uniform(0),
                                          Uniform(0.1),   Uniform(1e-12),  ErrorModel{},
                                          Uniform(1e-60), Uniform(1e-162), Uniform(0.03)};
  RandomStudyMaker maker(20'260'301);
  Coverage coverage;
  for (std::size_t round = 0; round < 540; ++round) {
    SCOPED_TRACE(round);
    const ErrorModel& model = models[round % models.size()];
    const StudyShape shape = round % 30 == 0 ? StudyShape{70, 12, 9, 20, true, true, true}
                                             : StudyShape{12, 4, 4, 8, true, round % 2 == 0, true};
    CompareStudy(maker.Make(model, shape), model, coverage);
    if (HasFailure()) {
      return;
    }
  }
  for (const char* const what :
       {"named", "uncollected", "open", "alike", "nothing typed", "tied pairs", "several groups",
        "no pair at all", "one offspring", "sexed", "non-sexed", "fewer than two pairs",
        "pairs near the smallest number", "relatives"}) {
    EXPECT_GE(coverage[what], 10) << what;
  }
  EXPECT_GT(coverage["gathered again"], 0);
}

/// With something known of most offspring.
TEST(Confidence, IsThePlainSumOverTheAllowedPairs) {
  const std::vector<ErrorModel> models = {NoError(), Uniform(0.01), ErrorModel{}};
  RandomStudyMaker maker(12);
  Coverage coverage;
  for (std::size_t round = 0; round < 300 && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    const ErrorModel& model = models[round % models.size()];
    const StudyShape shape = round % 30 == 0
                                 ? StudyShape{70, 12, 9, 20, true, true}
                                 : StudyShape{12, 4, 4, 8, true, round % 2 == 0, round % 4 < 2};
    const RandomStudy study = maker.Make(model, shape);
    std::vector<AllowedPairs> allowed(study.table.NumberOfIndividuals() - study.parents);
    for (AllowedPairs& one : allowed) {
      const AllowedPairs drawn = DrawAllowed(study, maker, coverage);
      if (HasPair(study.flow, study.groups, drawn)) {
        one = drawn;
        ++coverage[drawn.known_parent ? "with a known parent" : "without a known parent"];
      }
    }
    CompareStudy(study, model, coverage, allowed);
  }
  for (const char* const what :
       {"named", "open", "alike", "nothing typed", "several groups", "sexed", "non-sexed", "group",
        "with a known parent", "without a known parent", "relatives"}) {
    EXPECT_GE(coverage[what], 10) << what;
  }
}

/// A father 100/100 200/202, a mother 102/102 200/200 and their offspring 100/102 200/200 under a
/// uniform error of 0.1: q is 1/2 and 1/2, 0.7 and 0.3.
class TwoLoci : public testing::Test {
 protected:
  TwoLoci() : table_(2) {
    Add("father", 100, 100, 200, 202);
    Add("mother", 102, 102, 200, 200);
    Add("offspring", 100, 102, 200, 200);
    for (std::uint32_t locus = 0; locus < 2; ++locus) {
      catalogues_.push_back(AlleleCatalogue::Build(table_.Locus(LocusIndex{locus})).value());
      catalogues_.back().SortSizes();
      catalogues_.back().ReIndex(table_.Locus(LocusIndex{locus}));
    }
  }

  void Add(std::string_view name, std::uint32_t a, std::uint32_t b, std::uint32_t c,
           std::uint32_t d) {
    const Slot slot = table_.AddIndividual(name);
    table_.Genotype(LocusIndex{0}, slot).allele1 = AlleleSize{a};
    table_.Genotype(LocusIndex{0}, slot).allele2 = AlleleSize{b};
    table_.Genotype(LocusIndex{1}, slot).allele1 = AlleleSize{c};
    table_.Genotype(LocusIndex{1}, slot).allele2 = AlleleSize{d};
  }

  ConfidenceInput Input(Flow flow, std::span<const ReportedParents> reported) const {
    return {flow,        table_, {2, 3},  flow == Flow::kSexed ? sexed_ : non_sexed_,
            catalogues_, loci_,  reported};
  }

  GenotypeTable table_;
  AlleleCatalogues catalogues_;
  std::vector<LocusIndex> loci_ = {LocusIndex{0}, LocusIndex{1}};
  std::vector<CandidateGroup> sexed_ = {{{0, 1}, {1, 2}}};
  std::vector<CandidateGroup> non_sexed_ = {{{0, 2}, {0, 2}}};
};

TEST_F(TwoLoci, SexedAsWorkedOutByHand) {
  // Locus 1: scores (R, J) of the father 1.8 0.2, the mother 0.2 1.8, a stranger 1 1.
  // Locus 2: scores of the father 1 1, the mother 1.8 1.8, a stranger 2 (0.7 x 0.9 + 0.3 x 0.1).
  const double both = (1.8 * 1.8 + 0.2 * 0.2) * (2 * 1 * 1.8);
  const double father = (1.8 * 1 + 0.2 * 1) * (2 * 1 * 1.32);
  const double mother = (0.2 * 1 + 1.8 * 1) * (2 * 1.8 * 1.32);
  const double none = (2 * 1 * 1) * (2 * 1.32 * 1.32);
  const std::vector<ReportedParents> reported = {{Slot{0}, std::nullopt}};
  const ConfidenceResult result = Compute(Uniform(0.1), Input(Flow::kSexed, reported));
  const auto& theta = result.shares.theta;
  const double total = theta[Explanation::kBoth] * both + theta[Explanation::kFirst] * father +
                       theta[Explanation::kSecond] * mother + theta[Explanation::kNone] * none;
  // With one offspring, theta = (posterior + 1/4) / 2.
  EXPECT_NEAR(2 * theta[Explanation::kBoth] - theta[Explanation::kBoth] * both / total, 0.25, 1e-9);
  EXPECT_NEAR(2 * theta[Explanation::kNone] - theta[Explanation::kNone] * none / total, 0.25, 1e-9);
  const OffspringConfidence& one = result.offspring[0];
  const double p_father =
      (theta[Explanation::kBoth] * both + theta[Explanation::kFirst] * father) / total;
  const double p_no_mother =
      (theta[Explanation::kNone] * none + theta[Explanation::kFirst] * father) / total;
  EXPECT_EQ(one.sides[0].candidate->slot, Slot{0});
  EXPECT_NEAR(one.sides[0].candidate->probability, p_father, 1e-9);
  EXPECT_FALSE(one.sides[0].runner_up);
  EXPECT_NEAR(one.sides[1].candidate->probability, 1 - p_no_mother, 1e-9);
  EXPECT_NEAR(*one.sides[0].p_reported, p_father, 1e-9);
  EXPECT_NEAR(*one.sides[1].p_reported, p_no_mother, 1e-9);
  EXPECT_NEAR(*one.ln_pair_unknown[0], std::log(both / mother), 1e-12);
  EXPECT_NEAR(*one.ln_pair_unknown[1], std::log(both / father), 1e-12);
  EXPECT_EQ(one.best_explanation, Explanation::kBoth);
  EXPECT_NEAR(one.p_best, theta[Explanation::kBoth] * both / total, 1e-9);
}

/// What is said about two reported sides without sex depends on both of them.
TEST_F(TwoLoci, ReportedSidesOfTheNonSexedFlow) {
  const auto reported = [&](std::optional<Slot> first, std::optional<Slot> second) {
    const std::vector<ReportedParents> sides = {{first, second}};
    return Compute(Uniform(0.1), Input(Flow::kNonSexed, sides)).offspring[0];
  };
  const OffspringConfidence neither = reported({}, {});
  const auto& p = neither.p_explanation;
  const double at_most_one = p[Explanation::kNone] + p[Explanation::kFirst];
  EXPECT_DOUBLE_EQ(*neither.sides[0].p_reported, p[Explanation::kNone]);
  EXPECT_DOUBLE_EQ(*neither.sides[1].p_reported, at_most_one);
  const OffspringConfidence second = reported({}, Slot{1});
  EXPECT_DOUBLE_EQ(*second.sides[0].p_reported, at_most_one);
  EXPECT_EQ(second.sides[0].candidate->slot, Slot{1}) << "the mother alone explains more";
  EXPECT_DOUBLE_EQ(*second.sides[1].p_reported, second.sides[0].candidate->probability);
  const OffspringConfidence first = reported(Slot{0}, {});
  EXPECT_DOUBLE_EQ(*first.sides[0].p_reported, first.sides[1].candidate->probability);
  EXPECT_DOUBLE_EQ(*first.sides[1].p_reported, at_most_one);
}

/// Nothing tells the twins apart, so that neither is named, in file order, with what they share.
TEST_F(TwoLoci, IdenticalParentsShareTheirProbability) {
  GenotypeTable offspring_last(2);
  std::swap(table_, offspring_last);
  Add("father", 100, 100, 200, 202);
  Add("twin", 100, 100, 202, 200);
  Add("mother", 102, 102, 200, 200);
  for (int i = 0; i < 40; ++i) {
    Add("offspring", 100, 102, 200, 202);
  }
  for (std::uint32_t locus = 0; locus < 2; ++locus) {
    catalogues_[locus].ReIndex(table_.Locus(LocusIndex{locus}));
  }
  const std::vector<CandidateGroup> groups = {{{0, 2}, {2, 3}}};
  const ConfidenceResult result =
      Compute(NoError(), {Flow::kSexed, table_, {3, 43}, groups, catalogues_, loci_, {}});
  const SideConfidence& father = result.offspring[7].sides[0];
  EXPECT_EQ(father.candidate->slot, Slot{0});
  EXPECT_EQ(father.runner_up->slot, Slot{1});
  EXPECT_EQ(father.candidate->probability, father.runner_up->probability);
  EXPECT_EQ(father.alike, 2U);
  EXPECT_DOUBLE_EQ(father.p_all_alike, 2 * father.candidate->probability);
  EXPECT_EQ(father.verdict, Verdict::kOpen);
  EXPECT_EQ(result.offspring[7].tied_pairs, 2U);
  EXPECT_EQ(result.offspring[7].sides[1].alike, 1U);
}

TEST_F(TwoLoci, NothingIsComputedFromNegativeProbabilities) {
  const ConfidenceResult result = Compute(Uniform(-0.1), Input(Flow::kSexed, {}));
  EXPECT_FALSE(result.is_meaningful);
  EXPECT_TRUE(result.offspring.empty());
}

/// Of what is predicted with a probability of 0.7, seven of ten come true.
TEST(Confidence, PredictsHowOftenItIsRight) {
  struct Bin {
    double predicted = 0;
    double came_true = 0;
    double count = 0;
  };
  std::array<Bin, 5> bins;
  for (const unsigned seed : {1U, 2U, 3U}) {
    const KnownParents study({.seed = seed, .loci = 5, .alleles = 8, .collected = 0.6});
    const ConfidenceResult result = Compute(Uniform(0.01), study.Input());
    EXPECT_NEAR(result.shares.collected, 0.6, 3 * result.shares.standard_error);
    for (std::size_t i = 0; i < result.offspring.size(); ++i) {
      for (std::size_t side = 0; side < 2; ++side) {
        const SideConfidence& one = result.offspring[i].sides[side];
        const auto add = [&](double p, std::optional<Slot> parent) {
          Bin& bin = bins[std::min<std::size_t>(static_cast<std::size_t>(p * 5), 4)];
          bin.predicted += p;
          bin.came_true += study.IsParent(i, side, parent) ? 1 : 0;
          bin.count += 1;
        };
        add(one.candidate->probability, one.candidate->slot);
        add(one.p_uncollected, std::nullopt);
      }
    }
  }
  for (const Bin& bin : bins) {
    ASSERT_GT(bin.count, 100);
    const double predicted = bin.predicted / bin.count;
    EXPECT_NEAR(bin.came_true / bin.count, predicted,
                0.02 + 3 * std::sqrt(predicted * (1 - predicted) / bin.count));
  }
}

/// What a run names at the default level.
struct Named {
  double predicted = 0;  ///< sum of probabilities
  int right = 0;
  int wrong = 0;

  Named(const KnownParents& study, const ConfidenceResult& result) {
    for (std::size_t i = 0; i < result.offspring.size(); ++i) {
      for (std::size_t side = 0; side < 2; ++side) {
        const SideConfidence& one = result.offspring[i].sides[side];
        if (one.verdict == Verdict::kNamed) {
          predicted += one.candidate->probability;
          ++(study.IsParent(i, side, one.candidate->slot) ? right : wrong);
        }
      }
    }
  }
};

/// Among breeders of large families a candidate stands in for its uncollected sib, unless sibs
/// count.
TEST(Confidence, NamesFewerSibsOfTheTrueParentWhenRelativesCount) {
  for (const unsigned seed : {1U, 2U}) {
    const KnownParents families({.seed = seed, .loci = 10, .family = 5});
    const ConfidenceResult plain = Compute(Uniform(0.01), families.Input());
    const ConfidenceResult with_sibs = Compute(Uniform(0.01), families.Input(), 1, true);
    EXPECT_GT(*plain.relatives_gain, 10);
    EXPECT_NEAR(*plain.relatives_gain, *with_sibs.relatives_gain, 0.1);
    const Named before(families, plain);
    const Named after(families, with_sibs);
    EXPECT_GT(before.predicted, before.right + before.wrong / 2.0);
    EXPECT_LT(after.wrong, 0.7 * before.wrong);
    EXPECT_GT(after.right, 0.8 * before.right);
    EXPECT_GT(*with_sibs.sibs_of_candidates, 0.5);

    const KnownParents strangers({.seed = seed, .loci = 10});
    EXPECT_LT(*Compute(Uniform(0.01), strangers.Input()).relatives_gain, 3);
  }
}

void ExpectSame(const OffspringConfidence& a, const OffspringConfidence& b) {
  EXPECT_EQ(a.p_explanation, b.p_explanation);
  EXPECT_EQ(a.best, b.best);
  EXPECT_EQ(a.p_best, b.p_best);
  EXPECT_EQ(a.ln_best_second, b.ln_best_second);
  for (std::size_t side = 0; side < 2; ++side) {
    EXPECT_EQ(a.sides[side].candidate->slot, b.sides[side].candidate->slot);
    EXPECT_EQ(a.sides[side].candidate->probability, b.sides[side].candidate->probability);
    EXPECT_EQ(a.sides[side].p_uncollected, b.sides[side].p_uncollected);
  }
}

TEST(Confidence, IsTheSameForAnyNumberOfThreads) {
  const KnownParents study({.seed = 7, .loci = 6, .alleles = 8});
  for (const bool relatives : {false, true}) {
    const ConfidenceResult one = Compute(ErrorModel{}, study.Input(), 1, relatives);
    for (const unsigned threads : {2U, 3U, 7U}) {
      const ConfidenceResult many = Compute(ErrorModel{}, study.Input(), threads, relatives);
      EXPECT_EQ(many.shares.theta, one.shares.theta);
      EXPECT_EQ(many.shares.standard_error, one.shares.standard_error);
      EXPECT_EQ(many.relatives_gain, one.relatives_gain);
      for (std::size_t i = 0; i < one.offspring.size(); ++i) {
        ExpectSame(many.offspring[i], one.offspring[i]);
      }
    }
  }
}

/// Evidence without any doubt: the shares are counts with a quarter of an offspring more each, and
/// their standard error is that of a multinomial of one offspring more.
TEST(ExplanationShares, OfCertainEvidenceAreCounts) {
  std::vector<ByExplanation<double>> evidence;
  const std::array<int, 4> counts = {8, 3, 0, 8};
  for (std::size_t k = 0; k < 4; ++k) {
    ByExplanation<double> certain;
    certain[kAllExplanations[k]] = 0.5;
    evidence.insert(evidence.end(), static_cast<std::size_t>(counts[k]), certain);
  }
  WaysOfExplanations ways;
  for (const Explanation k : kAllExplanations) {
    ways[k] = 1;
  }
  const ExplanationShares shares = EstimateShares(evidence, ways);
  EXPECT_DOUBLE_EQ(shares.theta[Explanation::kBoth], 8.25 / 20);
  EXPECT_DOUBLE_EQ(shares.theta[Explanation::kSecond], 0.25 / 20);
  EXPECT_DOUBLE_EQ(shares.collected, (8.25 + (3.25 + 0.25) / 2) / 20);
  const double of_squares = (8.25 + (3.25 + 0.25) / 4) / 20;
  EXPECT_NEAR(shares.standard_error,
              std::sqrt((of_squares - shares.collected * shares.collected) / 20), 1e-12);
}

TEST(Verdict, FollowsTheLevel) {
  EXPECT_EQ(DecideVerdict(0.8, 0.2, 0.8), Verdict::kNamed);
  EXPECT_EQ(DecideVerdict(0.79, 0.2, 0.8), Verdict::kOpen);
  EXPECT_EQ(DecideVerdict(0.1, 0.85, 0.8), Verdict::kUncollected);
  EXPECT_EQ(DecideVerdict(0.5, 0.5, 0.5), Verdict::kNamed);
  EXPECT_TRUE(IsConfidenceLevel(0.5) && IsConfidenceLevel(1));
  EXPECT_FALSE(IsConfidenceLevel(0.49) || IsConfidenceLevel(std::nan("")));
}

}  // namespace
}  // namespace kaldo

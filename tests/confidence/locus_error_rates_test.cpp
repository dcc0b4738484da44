// SPDX-License-Identifier: GPL-3.0-or-later
// Error rates of the loci against the plain sum over all pairs, and against truth.
#include "confidence/locus_error_rates.h"

#include <cmath>

#include <gtest/gtest.h>

#include "tests/confidence/known_parents.h"
#include "tests/confidence/plain_confidence.h"
#include "tests/confidence/study_runs.h"

namespace kaldo {
namespace {

using test::Compute;
using test::KnownParents;
using test::PlainConfidence;
using test::Uniform;

/// So few candidates that all pairs worth a look are listed. What is left out under small rates
/// weighs a little under the large ones of loci that fit nobody.
TEST(LocusErrorRates, AreThoseOfThePlainSumOverAllPairs) {
  test::RandomStudyMaker maker(20'260'714);
  int compared = 0;
  for (int round = 0; round < 60; ++round) {
    SCOPED_TRACE(round);
    const ErrorModel model = round % 2 == 0 ? Uniform(0.01) : ErrorModel{};
    const auto study = maker.Make(model, {10, 4, 5, 12, true, true, true});
    const ConfidenceInput input = InputOf(study);
    const auto rates = Compute(model, input).error_rates;
    const auto plain = PlainConfidence(model, input).ErrorRates();
    ASSERT_EQ(rates.size(), plain.size());
    for (std::size_t k = 0; k < rates.size(); ++k) {
      if (!std::isnan(rates[k])) {
        EXPECT_NEAR(rates[k], plain[k], 1e-3 + plain[k] / 30);
        ++compared;
      } else if (input.catalogues[k].Sizes().size() > 1) {
        const auto typed = input.table.Locus(input.loci[k]).subspan(input.offspring.begin);
        EXPECT_TRUE(std::all_of(typed.begin(), typed.end(),
                                [](const LocusGenotype& one) { return one.IsMissing(); }));
      }
    }
  }
  EXPECT_GT(compared, 80);
}

/// The last of twelve loci is misread seven times out of eight when a random allele is read.
TEST(LocusErrorRates, FindTheBadLocus) {
  for (const unsigned seed : {1U, 2U}) {
    const KnownParents study({.seed = seed, .loci = 12, .alleles = 8, .error_at_last_locus = 0.17});
    const auto rates = Compute(Uniform(0.01), study.Input()).error_rates;
    ASSERT_EQ(rates.size(), 12U);
    EXPECT_NEAR(rates[11], 0.17 * 7 / 8, 0.05);
    EXPECT_LT(*std::max_element(rates.begin(), rates.end() - 1), 0.04);
    EXPECT_EQ(Compute(Uniform(0.01), study.Input(), 3).error_rates, rates);
  }
}

/// Of many offspring exactly a thousand tell, from the first to the last stretch of the file.
TEST(LocusErrorRates, RestOnAThousandOffspring) {
  for (const std::size_t offspring : {1000U, 1001U, 1999U, 50'000U}) {
    std::size_t telling = 0;
    for (std::size_t i = 0; i < offspring; ++i) {
      telling += TellsOfErrorRates(i, offspring) ? 1 : 0;
    }
    EXPECT_EQ(telling, 1000U);
  }
}

}  // namespace
}  // namespace kaldo

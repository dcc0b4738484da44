// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

#include <gtest/gtest.h>

#include "search/pair_searcher.h"
#include "tests/support/random_study.h"

namespace kaldo::test {

/// Makes a searcher ready for the parents and loci of a study.
inline void Prepare(PairSearcher& searcher, const RandomStudy& study,
                    const Candidates& candidates) {
  searcher.Prepare({.table = study.table,
                    .parents = study.parents,
                    .loci = study.loci,
                    .matrices = study.matrices},
                   candidates);
}

/// Bit for bit: ties are only ties where likelihoods are.
inline void ExpectSame(const AllocationOutcome& found, const AllocationOutcome& wanted) {
  ASSERT_EQ(found.pair_entries, wanted.pair_entries);
  ASSERT_TRUE(std::equal(found.Pairs().begin(), found.Pairs().end(), wanted.Pairs().begin()));
  ASSERT_EQ(found.more_than_five, wanted.more_than_five);
  ASSERT_EQ(found.best_likelihood, wanted.best_likelihood);
}

}  // namespace kaldo::test

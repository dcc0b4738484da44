// SPDX-License-Identifier: GPL-3.0-or-later
// A search in which a bound on a likelihood says nothing: the pair that it would rule out is the
// one to be found. Random studies do not come there.
#include <cmath>

#include <gtest/gtest.h>

#include "genotypes/catalogued_loci.h"
#include "search/pair_searcher.h"

namespace kaldo {
namespace {

/// A study that is written down genotype by genotype, with its offspring in the last slot.
class WrittenStudy {
 public:
  WrittenStudy(std::uint32_t parents, std::uint32_t loci) : table_(loci), parents_(parents) {
    for (std::uint32_t slot = 0; slot <= parents; ++slot) {
      table_.AddIndividual("");
    }
    for (std::uint32_t locus = 0; locus < loci; ++locus) {
      loci_.emplace_back(locus);
    }
  }

  Slot Offspring() const { return Slot{parents_}; }

  void Type(Slot slot, std::uint32_t locus, std::uint32_t allele1, std::uint32_t allele2) {
    LocusGenotype& genotype = table_.Genotype(LocusIndex{locus}, slot);
    genotype.allele1 = AlleleSize{allele1};
    genotype.allele2 = AlleleSize{allele2};
  }

  /// Searches both ways, compares and returns what the scan has found.
  AllocationOutcome Search(const ErrorModel& model, std::span<const CandidateGroup> groups) {
    std::vector<TransmissionMatrix> matrices;
    for (const LocusIndex locus : loci_) {
      auto catalogue = AlleleCatalogue::Build(table_.Locus(locus)).value();
      catalogue.SortSizes();
      catalogue.ReIndex(table_.Locus(locus));
      matrices.push_back(BuildMatrix(model, catalogue.Sizes()));
    }
    const RunObserver observer;
    const Candidates candidates{Flow::kNonSexed, groups, {}};
    TransmissionScores scores(loci_.size(), parents_);
    ComputeTransmissionScores(table_, Offspring(), loci_, matrices, scores);
    AllocationOutcome scan = ScanPairs(scores, candidates, observer);
    PairSearcher searcher;
    searcher.Prepare({.table = table_, .parents = parents_, .loci = loci_, .matrices = matrices},
                     candidates);
    const AllocationOutcome search = searcher.Search(Offspring(), observer);
    EXPECT_EQ(search.best_likelihood, scan.best_likelihood);
    EXPECT_EQ(search.pairs, scan.pairs);
    EXPECT_EQ(search.pair_entries, scan.pair_entries);
    return scan;
  }

 private:
  GenotypeTable table_;
  std::uint32_t parents_;
  std::vector<LocusIndex> loci_;
};

/// Among the smallest numbers a product is rounded to whole steps: at the smallest one of all,
/// every further factor above one half is rounded up and leaves it where it is. A pair that comes
/// down there at its first loci keeps more than its factors are worth, and beats a pair that comes
/// down at its last ones.
TEST(PairSearchLimits, LikelihoodsNearTheSmallestNumberAreAllMultipliedOut) {
  constexpr std::uint32_t kLoci = 50;
  constexpr std::uint32_t kParents = 40;
  constexpr std::uint32_t kLost = 24;     // loci at which the early pair comes down
  constexpr std::uint32_t kRaising = 38;  // from here on every pair has a factor of 2.2
  constexpr std::uint32_t kOne = 200;     // the alleles of the offspring
  constexpr std::uint32_t kOther = 300;
  constexpr std::uint32_t kFar = 400;  // never read as one of them
  ErrorModel model;
  model.minus2 = model.plus2 = std::exp2(-23.35);
  model.minus1 = model.plus1 = 0.24;
  model.focal = 0.52;

  WrittenStudy study(kParents, kLoci);
  for (std::uint32_t locus = 0; locus < kLoci; ++locus) {
    const std::uint32_t second = locus < kRaising ? kOther : kOne;
    study.Type(study.Offspring(), locus, kOne, second);
    // A unit distance of 2, and nothing to give.
    for (std::uint32_t slot = 4; slot < kParents; ++slot) {
      study.Type(Slot{slot}, locus, kFar, kFar + 2);
    }
    for (const bool is_late : {true, false}) {
      const Slot first_parent{is_late ? 0U : 2U};
      const Slot partner{is_late ? 1U : 3U};
      if (is_late ? locus > kLost + 2 : locus < kLost) {
        study.Type(first_parent, locus, kOne + 4, kOne + 4);
        study.Type(partner, locus, second + 4, second + 4);
        continue;
      }
      const bool is_weak = is_late && locus < kLost - 2;
      study.Type(first_parent, locus, kOne, is_weak ? kFar : kOne);
      study.Type(partner, locus, second, locus < kRaising ? kFar : second);
    }
  }
  const std::vector<CandidateGroup> groups = {{{0, 2}, {0, 2}}, {{2, 4}, {2, 4}}};
  const AllocationOutcome late = study.Search(model, std::span(groups).first(1));
  const AllocationOutcome both = study.Search(model, groups);
  EXPECT_GT(late.best_likelihood, 0x1p-1070);
  EXPECT_LT(both.best_likelihood, 0x1p-900);
  EXPECT_EQ(both.Pairs().front(), (ParentPair{Slot{2}, Slot{3}}));
}

}  // namespace
}  // namespace kaldo

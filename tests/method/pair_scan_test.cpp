// SPDX-License-Identifier: GPL-3.0-or-later
// The plain scan, the rule of the kept pairs included, against an obvious version of itself.
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
  const std::vector<ErrorModel> models = test::ModelsOfEveryKind();

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

TEST(CandidateGroups, SeparatorsAtTheEndsAndInARowMakeEmptyGroups) {
  GenotypeTable table(1);
  for (const char* name : {"*", "A", "B", "*pond", "**", "C", "*"}) {
    table.AddIndividual(name);
  }
  const std::vector<SlotRange> expected = {{0, 0}, {1, 3}, {4, 4}, {5, 6}, {7, 7}};
  EXPECT_EQ(CutAtSeparators(table, {0, 7}), expected);
}

}  // namespace
}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
// Results that are read from their reports are those that the run had in memory.
#include <cmath>
#include <fstream>
#include <gmock/gmock.h>

#include <gtest/gtest.h>

#include "allocation/findings.h"
#include "allocation/reopened_allocation.h"
#include "allocation/reports/max_like_report.h"
#include "runs/project_folder.h"
#include "simulation/reopened_simulation.h"
#include "tests/support/random_study.h"
#include "tests/support/run_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

constexpr const char* kRecord = "p/Run record.toml";

/// Separators and individuals from one slot up to another, as lines of a file.
std::string TextOf(const test::RandomStudy& study, std::uint32_t begin, std::uint32_t end) {
  std::string text;
  for (Slot slot{begin}; slot < Slot{end}; slot = Slot{slot.Value() + 1}) {
    const std::string name(study.table.Name(slot).Text());
    text += name;
    for (std::uint32_t locus = 0; name != "*" && locus < study.table.NumberOfLoci(); ++locus) {
      const LocusGenotype& genotype = study.table.Genotype(LocusIndex{locus}, slot);
      text += fmt::format(" {:03}{:03}", genotype.allele1.Value(), genotype.allele2.Value());
    }
    text += '\n';
  }
  return text;
}

AllocationSettings WriteStudy(const test::RandomStudy& study, const test::TempFolder& folder) {
  AllocationSettings settings;
  settings.flow = study.flow;
  settings.project = "p";
  settings.loci_file = "loci.txt";
  settings.offspring_file = "offspring.txt";
  const bool sexed = study.flow == Flow::kSexed;
  (sexed ? settings.males_file : settings.parents_file) = "first.txt";
  settings.females_file = sexed ? "second.txt" : "";
  std::string loci;
  for (std::uint32_t locus = 0; locus < study.table.NumberOfLoci(); ++locus) {
    loci += fmt::format("L{} ", locus);
  }
  folder.Write("loci.txt", loci);
  folder.Write("first.txt", TextOf(study, 0, study.males));
  folder.Write("second.txt", TextOf(study, study.males, study.parents));
  folder.Write(
      "offspring.txt",
      TextOf(study, study.parents, static_cast<std::uint32_t>(study.table.NumberOfIndividuals())));
  return settings;
}

/// What is shown of the k-th pair of an offspring; nothing where it has none.
std::string Shown(const AllocationRun& run, std::size_t offspring, std::size_t k) {
  const auto pairs = run.result.outcomes[offspring].Pairs();
  return k < pairs.size() ? IndividualLine(run.input, run.result, pairs[k].parent1) +
                                IndividualLine(run.input, run.result, pairs[k].parent2)
                          : "";
}

/// Told with eight digits, or not at all where nothing was said.
MATCHER_P(IsTold, value, "") {
  return arg.has_value() == value.has_value() &&
         (!value || *arg == *value || std::abs(*arg - *value) <= 1e-7 * std::abs(*value));
}

std::optional<double> Probability(const std::optional<ProbableParent>& parent) {
  return parent ? std::optional(parent->probability) : std::nullopt;
}

std::string_view NameIn(const AllocationRun& run, const std::optional<ProbableParent>& parent) {
  return parent ? run.input.table.Name(parent->slot).Text() : "";
}

void ExpectSameCertainty(const AllocationRun& then, const AllocationRun& now, std::size_t k) {
  const OffspringConfidence& old = then.result.confidence->offspring[k];
  const OffspringConfidence& read = now.result.confidence->offspring[k];
  EXPECT_EQ(std::tie(read.is_possible, read.is_typed, read.best_explanation, read.tied_pairs),
            std::tie(old.is_possible, old.is_typed, old.best_explanation, old.tied_pairs));
  EXPECT_EQ(DoubtAbout(read).has_value(), DoubtAbout(old).has_value());
  for (std::size_t side = 0; side < 2; ++side) {
    const SideConfidence& was = old.sides.at(side);
    const SideConfidence& is = read.sides.at(side);
    EXPECT_EQ(CertaintyOf(is), CertaintyOf(was));
    EXPECT_EQ(NameIn(now, is.candidate), NameIn(then, was.candidate));
    EXPECT_THAT(Probability(is.candidate), IsTold(Probability(was.candidate)));
    EXPECT_EQ(NameIn(now, is.runner_up), NameIn(then, was.runner_up));
    EXPECT_THAT(Probability(is.runner_up), IsTold(Probability(was.runner_up)));
    EXPECT_THAT(is.p_reported, IsTold(was.p_reported));
    EXPECT_NEAR(is.p_uncollected, was.p_uncollected, 1e-8);
  }
}

/// Posteriors, the shares that follow from them, and the loci.
void ExpectSameConfidence(const AllocationRun& then, const AllocationRun& now) {
  ASSERT_EQ(KnowsCertainty(now.result), KnowsCertainty(then.result));
  ASSERT_EQ(now.result.loci_quality.size(), then.result.loci_quality.size());
  for (std::size_t k = 0; k < then.result.loci_quality.size(); ++k) {
    EXPECT_THAT(now.result.loci_quality[k].error_rate,
                IsTold(then.result.loci_quality[k].error_rate));
  }
  if (!KnowsCertainty(then.result)) {
    return;
  }
  for (std::size_t k = 0; k < then.result.outcomes.size(); ++k) {
    ExpectSameCertainty(then, now, k);
  }
  const ExplanationShares& old = then.result.confidence->shares;
  const ExplanationShares& read = now.result.confidence->shares;
  EXPECT_NEAR(read.collected, old.collected, 1e-7);
  EXPECT_NEAR(read.collected_by_side[0], old.collected_by_side[0], 1e-7);
  EXPECT_NEAR(read.collected_by_side[1], old.collected_by_side[1], 1e-7);
}

void ExpectSameOutcome(const AllocationRun& then, const AllocationRun& now, std::size_t k) {
  const AllocationOutcome& old = then.result.outcomes[k];
  const AllocationOutcome& read = now.result.outcomes[k];
  EXPECT_EQ(read.more_than_five, old.more_than_five);
  EXPECT_EQ(read.best_likelihood, old.best_likelihood);
  EXPECT_EQ(
      std::tie(read.par1_uncollected, read.par2_uncollected, read.errors_par1, read.errors_par2),
      std::tie(old.par1_uncollected, old.par2_uncollected, old.errors_par1, old.errors_par2));
  if (old.HasPair()) {
    EXPECT_EQ(read.pairs.front(), old.pairs.front());
  }
  const std::size_t told = old.more_than_five ? 1 : KeptPairs::kCapacity;
  for (std::size_t pair = 1; pair < told; ++pair) {
    EXPECT_EQ(Shown(now, k, pair), Shown(then, k, pair));
  }
}

TEST(ReopenedResults, AnAllocationIsWhatItWas) {
  const test::TempFolder folder;
  const test::WorkingFolder here(folder.Path(""));
  std::size_t runs = 0;
  std::size_t many_pairs = 0;
  std::size_t certain = 0;
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    test::RandomStudyMaker random(seed);
    const ErrorModel model = test::ModelsOfEveryKind()[seed % 4];
    const auto study = random.Make(model, {.parents = 20,
                                           .loci = 4,
                                           .alleles = 4,
                                           .offspring = 12,
                                           .groups = true,
                                           .bred_offspring = true});
    AllocationSettings settings = WriteStudy(study, folder);
    settings.may_replace_other_flow = true;
    settings.error_model = model;
    settings.confidence.computed = random.Draw(0, 4) > 0;
    settings.tolerance = OffsetTolerance{static_cast<std::int32_t>(random.Draw(0, 2))};
    if (random.Draw(0, 2) == 0) {
      settings.sequence.emplace();
    }
    RunObserver observer;
    const auto then = RunAllocation(settings, observer);
    if (!then) {
      continue;  // a study that no run takes: without males, for instance
    }
    ++runs;
    certain += KnowsCertainty(then->result) ? 1U : 0U;
    const auto record = ReadRunRecord(kRecord);
    ASSERT_TRUE(record);
    const RecordedReports reports(*record, kRecord);
    const auto reopened = ReopenAllocation(settings, settings, *record, reports, observer);
    ASSERT_TRUE(reopened) << DetailLine(reopened.error());
    EXPECT_FALSE(reopened->without_certainty) << DetailLine(*reopened->without_certainty);
    const AllocationRun* const now = &reopened->run;
    ExpectSameConfidence(*then, *now);
    for (std::size_t k = 0; k < then->result.outcomes.size(); ++k) {
      ExpectSameOutcome(*then, *now, k);
      many_pairs += then->result.outcomes[k].more_than_five ? 1U : 0U;
    }
    ASSERT_EQ(now->result.shares.size(), then->result.shares.size());
    for (std::size_t k = 0; k < then->result.shares.size(); ++k) {
      for (std::size_t pair = 0; pair < then->result.shares[k].pairs.size(); ++pair) {
        EXPECT_EQ(now->result.shares[k].pairs[pair].share,
                  then->result.shares[k].pairs[pair].share);
      }
    }
  }
  EXPECT_GT(runs, 20U);
  EXPECT_GT(many_pairs, 8U);
  EXPECT_GT(certain, 12U);
}

/// Told with six digits, or not at all where nothing was said.
MATCHER_P(IsAbout, value, "") {
  return std::isnan(value) ? std::isnan(arg) : std::abs(arg - value) <= 1e-5 * std::abs(value);
}

void ExpectSameFigures(const SimulationResult& then, const SimulationResult& now, bool all_told) {
  ASSERT_EQ(now.subsets.size(), then.subsets.size());
  EXPECT_EQ(now.criterion_reached, then.criterion_reached);
  EXPECT_EQ(now.seed, then.seed);
  for (std::size_t k = 0; k < then.subsets.size(); ++k) {
    const ProbabilityEstimates& old = then.subsets[k].estimates;
    const ProbabilityEstimates& read = now.subsets[k].estimates;
    EXPECT_EQ(now.subsets[k].loci, then.subsets[k].loci);
    EXPECT_EQ(now.subsets[k].iterations, then.subsets[k].iterations);
    EXPECT_THAT(now.subsets[k].probabilities.any, IsAbout(then.subsets[k].probabilities.any));
    for (std::size_t kind = 0; kind < old.population.size(); ++kind) {
      EXPECT_THAT(read.population.at(kind).value, IsAbout(old.population.at(kind).value));
      EXPECT_THAT(read.population.at(kind).error,
                  IsAbout(all_told ? old.population.at(kind).error : Estimate::kNone));
    }
    for (std::size_t origin = 0; all_told && origin < old.classes.size(); ++origin) {
      EXPECT_THAT(read.classes[origin][0].deviation, IsAbout(old.classes[origin][0].deviation));
    }
  }
  ASSERT_EQ(now.origins.size(), then.origins.size());
  for (std::size_t k = 0; k < then.origins.size(); ++k) {
    EXPECT_EQ(now.origins[k].offspring, then.origins[k].offspring);
    EXPECT_EQ(now.origins[k].is_empty, then.origins[k].is_empty);
    if (then.origins[k].is_empty) {
      continue;
    }
    EXPECT_THAT(now.origins[k].correct.spread.deviation,
                IsAbout(then.origins[k].correct.spread.deviation));
    ASSERT_EQ(now.origins[k].correct.values.size(), then.origins[k].correct.values.size());
    for (std::size_t i = 0; i < then.origins[k].correct.values.size(); ++i) {
      EXPECT_THAT(now.origins[k].correct.values[i], IsAbout(then.origins[k].correct.values[i]));
    }
  }
}

TEST(ReopenedResults, ASimulationIsWhatItsReportsTell) {
  const test::TempFolder folder;
  const test::WorkingFolder here(folder.Path(""));
  test::RandomStudyMaker random(7);
  test::RandomStudy study;
  while (study.flow != Flow::kNonSexed || study.parents < 12 || study.loci.size() < 3) {
    study = random.Make(ErrorModel{}, {.parents = 20, .loci = 4, .alleles = 4});
  }
  (void)WriteStudy(study, folder);
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    for (const auto& strategy : kStrategies) {
      SCOPED_TRACE(fmt::format("{} {}", flow == Flow::kSexed, strategy.name));
      SimulationSettings settings;
      settings.flow = flow;
      settings.project = "p";
      settings.may_replace_other_flow = true;
      settings.loci_file = "loci.txt";
      settings.iterations = 4;
      settings.offspring_per_iteration = 21;
      settings.strategy = strategy.choice;
      settings.criterion = 0.3;
      settings.seed = 5;
      for (ParentalSet& set : settings.sets) {
        set.collected_file = "first.txt";
        set.uncollected_sample = "first.txt";
        set.uncollected = 3;
        set.estimated_collected = 9;
        set.estimated_uncollected = 1;
      }
      RunObserver observer;
      const auto then = RunSimulation(settings, observer);
      ASSERT_TRUE(then) << DetailLine(then.error());
      const auto record = ReadRunRecord(kRecord);
      ASSERT_TRUE(record);
      const auto now = ReopenSimulation(settings, *record, RecordedReports(*record, kRecord));
      ASSERT_TRUE(now) << DetailLine(now.error());
      ExpectSameFigures(then->result, now->result, strategy.choice != LociStrategy::kChoice);
      std::ofstream("p/Summary.xls", std::ios::app) << ' ';
      const auto edited = ReopenSimulation(settings, *record, RecordedReports(*record, kRecord));
      ASSERT_FALSE(edited);
      EXPECT_THAT(DetailLine(edited.error()), testing::HasSubstr("\"Summary.xls\" has other"));
    }
  }
}

}  // namespace
}  // namespace kaldo

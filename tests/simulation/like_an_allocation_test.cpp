// SPDX-License-Identifier: GPL-3.0-or-later
// What makes simulations more like the allocation that they stand for.
#include <algorithm>
#include <array>
#include <iterator>
#include <random>
#include <sstream>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "allocation/allocation_run.h"
#include "method/undefined_parents.h"
#include "simulation/off_ladder.h"
#include "simulation/pseudo_offspring.h"
#include "simulation/simulation_run.h"
#include "tests/support/case_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WorkingFolder;

constexpr std::size_t kLoci = 4;

/// Adults on ladders with a gap, who are candidates and the sample of everybody else: so no allele
/// is known to one run only.
class LikeAnAllocation : public testing::Test {
 protected:
  LikeAnAllocation() {
    std::mt19937 random(7);
    for (int k = 0; k < 14; ++k) {
      adults_ += fmt::format("A{}", k);
      for (std::size_t locus = 0; locus < kLoci; ++locus) {
        const auto allele = [&] {
          const auto step = random() % 8;
          return 100 + 2 * (step > 4 ? step + 3 : step);
        };
        adults_ += fmt::format(" {}{}", allele(), allele());
      }
      adults_ += '\n';
    }
    settings_.project = "project";
    settings_.loci_file = folder_.Write("loci", "A B C D");
    for (ParentalSet& set : settings_.sets) {
      set.collected_file = folder_.Write("adults", adults_);
      set.uncollected_sample = set.collected_file;
      set.uncollected = 9;
      set.estimated_collected = 14;
      set.estimated_uncollected = 9;
    }
    settings_.error_model = ErrorModel{.kind = ErrorKind::kUniform, .epsilon = 0.05};
    settings_.iterations = 1;
    settings_.offspring_per_iteration = 300;
    settings_.keep = KeptFiles{true, true, false};
    settings_.seed = 11;
  }

  static SimulationResult Result(const SimulationSettings& settings) {
    RunObserver observer;
    auto run = RunSimulation(settings, observer);
    EXPECT_TRUE(run) << SentenceOf(run.error()) << ' ' << DetailLine(run.error());
    return run ? std::move(run->result) : SimulationResult{};
  }

  /// The words of the pseudo-offspring of the last run: true parents and genotypes.
  static std::vector<std::vector<std::string>> Kept() {
    std::vector<std::vector<std::string>> kept;
    std::istringstream lines(ReadFile("project/pseudo-offspring.txt"));
    for (std::string line; std::getline(lines, line);) {
      std::istringstream words(line);
      kept.emplace_back(std::istream_iterator<std::string>(words),
                        std::istream_iterator<std::string>());
    }
    return kept;
  }

  TempFolder folder_;                     // NOLINT(misc-non-private-member-variables-in-classes)
  WorkingFolder here_{folder_.Path("")};  // NOLINT(misc-non-private-member-variables-in-classes)
  std::string adults_;                    // NOLINT(misc-non-private-member-variables-in-classes)
  SimulationSettings settings_;           // NOLINT(misc-non-private-member-variables-in-classes)
};

/// Sides of two that are right: given to a true parent, or left as UC, as many as are missing.
double RightShare(const AllocationOutcome& outcome, std::array<std::uint32_t, 2> truth,
                  std::uint32_t candidates) {
  const auto missing = (truth[0] >= candidates ? 1 : 0) + (truth[1] >= candidates ? 1 : 0);
  int right = 0;
  int left = 0;
  for (const auto& [slot, uncollected] :
       {std::pair{outcome.pairs.front().parent1, outcome.par1_uncollected},
        std::pair{outcome.pairs.front().parent2, outcome.par2_uncollected}}) {
    if (!outcome.HasPair() || uncollected) {
      ++left;
    } else {
      right += slot.Value() == truth[0] || slot.Value() == truth[1] ? 1 : 0;
    }
  }
  return (right + std::min(left, missing)) / 2.0;
}

TEST_F(LikeAnAllocation, IsRightAsOftenAsAnAllocationOfItsPseudoOffspring) {
  settings_.undefined = 0.15;
  const ErrorModel other{.kind = ErrorKind::kUniform, .epsilon = 0.002};
  for (const std::optional<ErrorModel>& with :
       {std::optional<ErrorModel>(), std::optional(other)}) {
    settings_.allocate_with = with;
    for (const std::int32_t tolerance : {0, 2}) {
      settings_.tolerance = OffsetTolerance{tolerance};
      const SimulationResult result = Result(settings_);
      std::string young;
      std::vector<std::array<std::uint32_t, 2>> truth;
      for (const auto& words : Kept()) {
        truth.push_back({static_cast<std::uint32_t>(std::stoul(words[0])),
                         static_cast<std::uint32_t>(std::stoul(words[1]))});
        young +=
            fmt::format("Y{} {}\n", truth.size(), fmt::join(words.begin() + 2, words.end(), " "));
      }
      AllocationSettings allocation;
      allocation.project = "allocation";
      allocation.loci_file = settings_.loci_file;
      allocation.parents_file = settings_.sets[0].collected_file;
      allocation.offspring_file = folder_.Write("young", young);
      allocation.error_model = with.value_or(settings_.error_model);
      allocation.tolerance = settings_.tolerance;
      RunObserver observer;
      const auto run = RunAllocation(allocation, observer);
      ASSERT_TRUE(run) << SentenceOf(run.error()) << ' ' << DetailLine(run.error());
      std::size_t next = 0;
      for (std::size_t k = 0; k < 3; ++k) {
        const auto size = static_cast<std::size_t>(result.origins[k].offspring);
        double right = 0;
        for (std::size_t i = 0; i < size; ++i, ++next) {
          right += RightShare(run->result.outcomes[next], truth[next], 14);
        }
        EXPECT_NEAR(result.origins[k].correct.spread.mean, right / static_cast<double>(size), 1e-9)
            << k;
      }
      EXPECT_EQ(next, truth.size());
    }
  }
}

TEST_F(LikeAnAllocation, LosesLociAsOftenAsRealOffspringAndNothingElse) {
  (void)Result(settings_);
  const auto whole = Kept();
  settings_.undefined_like =
      folder_.Write("real",
                    "O1 100100 000000 100100 000000\nO2 100100 000000 000000 100100\n"
                    "O3 100100 000000 100100 102102\nO4 100100 100100 100102 000000\n");
  (void)Result(settings_);
  const auto some = Kept();
  ASSERT_EQ(whole.size(), some.size());
  std::array<double, kLoci> lost{};
  for (std::size_t i = 0; i < whole.size(); ++i) {
    for (std::size_t word = 0; word < whole[i].size(); ++word) {
      if (word >= 2 && some[i][word] == "000000") {
        lost.at(word - 2) += 1 / static_cast<double>(whole.size());
      } else {
        EXPECT_EQ(some[i][word], whole[i][word]);
      }
    }
  }
  constexpr std::array<double, kLoci> kShares = {0, 0.75, 0.25, 0.5};
  for (std::size_t locus = 0; locus < kLoci; ++locus) {
    EXPECT_NEAR(lost.at(locus), kShares.at(locus), locus == 0 ? 0 : 0.09) << locus;
  }
}

TEST_F(LikeAnAllocation, SamplesCanBeTakenWithoutWhatIsUndefined) {
  (void)Result(settings_);
  const std::string plain = ReadFile("project/uncollected parents.txt");
  // The first listed allele of every locus would gain.
  settings_.sets[0].uncollected_sample =
      folder_.Write("gaps", adults_ + "X 000000 000000 000000 000000\n");
  (void)Result(settings_);
  EXPECT_NE(ReadFile("project/uncollected parents.txt"), plain);
  settings_.undefined_in_sample = UndefinedInSample::kIgnore;
  (void)Result(settings_);
  EXPECT_EQ(ReadFile("project/uncollected parents.txt"), plain);
}

TEST_F(LikeAnAllocation, NeedsNoSampleOfNobody) {
  settings_.sets[0].uncollected = 0;
  const double with = Result(settings_).LastSubset().probabilities.any;
  const std::string offspring = ReadFile("project/pseudo-offspring.txt");
  settings_.sets[0].uncollected_sample.clear();
  EXPECT_EQ(Result(settings_).LastSubset().probabilities.any, with);
  EXPECT_EQ(ReadFile("project/pseudo-offspring.txt"), offspring);
  settings_.scan_uncollected = {0, 5};
  RunObserver observer;
  EXPECT_EQ(RunSimulation(settings_, observer).error().kind, ProblemKind::kNoSampleFile);
}

/// A scan gives what as many runs give.
TEST_F(LikeAnAllocation, ScansLikeOneRunAfterTheOther) {
  settings_.allocate_with.reset();
  settings_.iterations = 3;
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    settings_.flow = flow;
    SimulationSettings scan = settings_;
    scan.project = fmt::format("scan {}", static_cast<int>(flow));
    scan.scan_tolerance = {3, 0};
    scan.scan_uncollected = {2, 9, 20};
    const auto rows = Result(scan).scan;
    ASSERT_EQ(rows.size(), 6U);
    for (std::size_t k = 0; k < rows.size(); ++k) {
      SimulationSettings one = settings_;
      one.project = fmt::format("one {}", static_cast<int>(flow));
      one.tolerance = OffsetTolerance{scan.scan_tolerance[k % 2]};
      for (ParentalSet& set : one.sets) {
        set.uncollected = set.estimated_uncollected = scan.scan_uncollected[k / 2];
      }
      const SimulationResult result = Result(one);
      EXPECT_EQ(rows[k].tolerance, one.tolerance);
      EXPECT_EQ(rows[k].uncollected.back(), one.sets[0].uncollected);
      EXPECT_EQ(rows[k].any, result.LastSubset().probabilities.any) << k;
      EXPECT_EQ(rows[k].to_uncollected, result.LastSubset().probabilities.to_uncollected) << k;
      EXPECT_EQ(rows[k].is_best, rows[k].any > rows[k ^ 1U].any) << k;
      ASSERT_EQ(rows[k].by_class.size() + 1, result.origins.size());
      for (std::size_t of_class = 0; of_class < rows[k].by_class.size(); ++of_class) {
        EXPECT_EQ(rows[k].by_class[of_class].value_or(0),
                  result.origins[of_class].correct.spread.mean);
      }
    }
  }
}

// A ladder of steps of 2 with a gap: 100, 102, 104, 110. Per allele the model wants 0.020 errors.
// Of 100 it cannot have those down, 0.010; of 102 those to 98 and 106, 0.004; of 104 those to 106
// and 108, 0.010; of 110 none at all. 0.4 x 10 + 0.3 x 4 + 0.2 x 10 + 0.1 x 20 = 9.2 of 20 are
// lost.
TEST(OffLadder, StaysTheParentsOwnAllele) {
  const ErrorModel steps;
  const std::vector<AlleleSize> sizes = {AlleleSize{100}, AlleleSize{102}, AlleleSize{104},
                                         AlleleSize{110}};
  const std::vector<double> frequencies = {0.4, 0.3, 0.2, 0.1};
  EXPECT_NEAR(OffLadderShare(steps, sizes, frequencies).value_or(0), 0.46, 1e-12);
  EXPECT_FALSE(OffLadderShare(kErrorModelUnlessTold, sizes, frequencies));

  TransmissionMatrix matrix = BuildMatrix(steps, sizes);
  constexpr int kDraws = 100'000;
  std::array<double, 4> misread{};
  for (std::uint8_t own = 0; own < 4; ++own) {
    for (int k = 0; k < kDraws; ++k) {
      const AlleleIndex read = Transmit(matrix, AlleleIndex{own}, (k + 0.5) / kDraws);
      misread.at(own) += read == AlleleIndex{own} ? 0 : 1.0 / kDraws;
    }
  }
  constexpr std::array<double, 4> kMisread = {0.010, 0.016, 0.010, 0};
  for (std::size_t own = 0; own < 4; ++own) {
    EXPECT_NEAR(misread.at(own), kMisread.at(own), 1.5 / kDraws) << own;
  }

  // An undefined parent carries each of them as often as they are.
  AddUndefinedAllele(frequencies, matrix);
  FillUndefinedRow(frequencies, matrix);
  for (std::size_t read = 0; read < 4; ++read) {
    double expected = frequencies[read] * (1 - kMisread.at(read));
    for (std::size_t own = 0; own < 4; ++own) {
      expected += own == read ? 0 : frequencies[own] * matrix(own, read);
    }
    EXPECT_NEAR(matrix(4, read), expected, 1e-12) << read;
  }
}

}  // namespace
}  // namespace kaldo

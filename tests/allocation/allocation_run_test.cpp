// SPDX-License-Identifier: GPL-3.0-or-later
// Whole runs from files to files.
#include "allocation/allocation_run.h"

#include <atomic>
#include <filesystem>
#include <regex>

#include <gtest/gtest.h>

#include "runs/project_folder.h"
#include "tests/support/case_support.h"
#include "tests/support/run_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::ReadFile;
using test::StoppingObserver;
using test::TempFolder;

AllocationSettings NonSexedSettings() {
  AllocationSettings settings;
  settings.project = "project";
  settings.parents_file = "parents.txt";
  settings.offspring_file = "offspring.txt";
  settings.loci_file = "loci.txt";
  return settings;
}

AllocationSettings SexedSettings() {
  AllocationSettings settings = NonSexedSettings();
  settings.flow = Flow::kSexed;
  settings.males_file = "males.txt";
  settings.females_file = "females.txt";
  return settings;
}

void ExpectCase(const std::string& name, const AllocationSettings& settings) {
  RunObserver observer;
  test::ExpectCase(
      name, [&] { return RunAllocation(settings, observer); }, [] {});
}

TEST(AllocationRun, WritesTheReportsOfTwoGroupsWorkedOutByHand) {
  AllocationSettings settings = NonSexedSettings();
  settings.loci_in_use = {"Bb2", "Aa1"};
  settings.error_model = ErrorModel{};
  settings.confidence.computed = false;
  ExpectCase("two-groups", settings);
}

// The posteriors were summed up over all pairs apart from the program, with two loci: the last
// combination. At X1 the parents carry 10, 12 twice, 14 three times and 16 once: expected are
// 8/7 (1 - 18/64) = 23/28 heterozygotes.
TEST(AllocationRun, WritesTheReportsOfASexedSequenceWorkedOutByHand) {
  AllocationSettings settings = SexedSettings();
  settings.tolerance = OffsetTolerance{0};
  settings.error_model.epsilon = 0.02;
  settings.sequence = {2, 1};
  ExpectCase("sexed-sequence", settings);
}

/// B may carry anything at L2: among the typed parents 200 and 202 have two copies each and half a
/// copy more, so that B gives either with the scores 2 x 1/2. With A it gives 4 at L1 and
/// 2 x 1 + 0 x 1 at L2; no other pair explains L1.
TEST(AllocationRun, TakesAnUndefinedParentForACarrierOfAnyAllele) {
  const TempFolder folder;
  AllocationSettings settings = NonSexedSettings();
  settings.project = folder.Path("project");
  settings.loci_file = folder.Write("loci", "L1 L2\n");
  settings.parents_file =
      folder.Write("parents", "A 150150 200200\nB 154154 000000\nC 158158 202202\n");
  settings.offspring_file = folder.Write("offspring", "K 150154 200202\n");
  settings.error_model.kind = ErrorKind::kNoError;
  RunObserver observer;
  EXPECT_FALSE(RunAllocation(settings, observer)) << "parents have all loci unless it is allowed";
  settings.allow_undefined_parents = true;
  const auto run = RunAllocation(settings, observer);
  ASSERT_TRUE(run);
  const AllocationOutcome& outcome = run->result.outcomes.front();
  EXPECT_EQ(outcome.best_likelihood, 8);
  ASSERT_EQ(outcome.Pairs().size(), 1U);
  EXPECT_EQ(outcome.Pairs()[0], (ParentPair{Slot{0}, Slot{1}}));
  EXPECT_EQ(run->result.counters.back().both_collected, 1);
}

/// What is told of the offspring Y, and its line of the report.
struct Known {
  std::string mother;
  std::string candidates;
  std::string group;
  std::string line;
};

/// Y is heterozygous at both loci. Without error its likelihood is 4 per locus with two parents
/// that are homozygous for one allele each (A or D, B or E), 2 with such a one and a heterozygous
/// one (C, F) or with both of these, 0 with any other two. Z, of which nothing is told, tries all.
TEST(KnownOffspring, AreTriedWithTheAllowedPairsAlone) {
  const std::string a = " 100100 200200\n";
  const std::string b = " 102102 202202\n";
  const std::string both = " 100102 200202\n";
  const std::vector<Known> non_sexed = {
      {"", "", "", "A\tB\t[1,2]"},
      {"*", "*", "*", "A\tB\t[1,2]"},
      {"C", "", "", "A\tC\t[1,3]"},
      {"E", "", "", "D\tE\t[5,6]"},
      {"", "E C D A", "", "D\tE\t[5,6]"},
      {"", "", "2", "D\tE\t[5,6]"},
      {"C", "E D\tC B C", "1", "B\tC\t[2,3]"},
  };
  const std::vector<Known> sexed = {
      {"", "", "", "A\tB\t[1,1]"},        {"F", "", "", "A\tF\t[1,2]"},
      {"", "C D B E", "", "D\tE\t[4,4]"}, {"", "", "2", "D\tE\t[4,4]"},
      {"F", "F C", "1", "C\tF\t[2,2]"},
  };
  const TempFolder folder;
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    AllocationSettings settings = flow == Flow::kSexed ? SexedSettings() : NonSexedSettings();
    settings.project = folder.Path("project");
    settings.may_replace_other_flow = true;
    settings.error_model.kind = ErrorKind::kNoError;
    settings.loci_file = folder.Write("loci", "L1 L2");
    settings.parents_file =
        folder.Write("parents", "A" + a + "B" + b + "C" + both + "*\nD" + a + "E" + b);
    settings.males_file = folder.Write("males", "A" + a + "C" + both + "*\nD" + a);
    settings.females_file = folder.Write("females", "B" + b + "F" + both + "*\nE" + b);
    settings.offspring_file = folder.Write("offspring", "Y" + both + "Z" + both);
    const auto file = [&](const std::string& name, const std::string& words) {
      return words.empty() ? "" : folder.Write(name, "Z *\nY\t" + words + "\n");
    };
    for (const Known& known : flow == Flow::kSexed ? sexed : non_sexed) {
      settings.known_mother_file = file("mothers", known.mother);
      settings.candidates_file = file("candidates", known.candidates);
      settings.offspring_groups_file = file("groups", known.group);
      RunObserver observer;
      ASSERT_TRUE(RunAllocation(settings, observer));
      const std::string report = ReadFile(folder.Path("project/Allocation results.xls"));
      EXPECT_NE(report.find("\nY\t" + known.line + "\t[0,0]\n"), std::string::npos) << report;
      EXPECT_NE(report.find(flow == Flow::kSexed ? "\nZ\tA\tB\t[1,1]" : "\nZ\tA\tB\t[1,2]"),
                std::string::npos)
          << report;
    }
  }
}

/// The example data sets, run in a folder of their own.
class ExampleRun : public testing::Test {
 protected:
  AllocationSettings Settings(Flow flow) const {
    AllocationSettings settings = flow == Flow::kSexed ? SexedSettings() : NonSexedSettings();
    const std::string examples =
        std::string(KALDO_ROOT) + "/examples/" + (flow == Flow::kSexed ? "sexed/" : "non-sexed/");
    for (std::string* path : {&settings.parents_file, &settings.males_file, &settings.females_file,
                              &settings.offspring_file, &settings.loci_file}) {
      if (!path->empty()) {
        path->insert(0, examples);
      }
    }
    settings.project = folder_.Path("project");
    return settings;
  }

  /// Every report of the project folder, one after the other.
  std::string Reports() const {
    std::string text;
    for (const std::string& file : folder_.FilesIn("project")) {
      if (file != "Run record.toml") {
        text += file + '\n' + ReadFile(folder_.Path("project/" + file));
      }
    }
    return text;
  }

  TempFolder folder_;
};

TEST_F(ExampleRun, GivesTheSameReportsForAnyNumberOfThreads) {
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    AllocationSettings settings = Settings(flow);
    settings.sequence.emplace();
    settings.may_replace_other_flow = true;
    std::string with_one_thread;
    for (const unsigned threads : {1U, 2U, 7U}) {
      settings.threads = threads;
      RunObserver observer;
      ASSERT_TRUE(RunAllocation(settings, observer));
      if (threads == 1) {
        with_one_thread = Reports();
      }
      EXPECT_EQ(Reports(), with_one_thread) << threads;
    }
  }
}

TEST(AllocationRecord, CountsEveryOffspringWithTwoEquallyLikelyPairsOrMore) {
  const TempFolder folder;
  AllocationSettings settings = NonSexedSettings();
  settings.project = folder.Path("project");
  settings.loci_file = folder.Write("loci", "L1\n");
  settings.parents_file = folder.Write("parents", "A 150150 B 152152 C 152152 D 160160 E 170170\n");
  // X comes of A with B or with C, Y of D and E alone, Z of B and C alone.
  settings.offspring_file = folder.Write("offspring", "X 150152 Y 160170 Z 152152\n");
  settings.error_model.kind = ErrorKind::kNoError;
  RunObserver observer;
  ASSERT_TRUE(RunAllocation(settings, observer));
  EXPECT_NE(ReadFile(folder.Path("project/Run record.toml"))
                .find("\"1 of 3 offspring have several equally likely pairs;"),
            std::string::npos);
}

TEST_F(ExampleRun, StoppedRunLeavesEarlierResultsAsTheyWere) {
  AllocationSettings settings = Settings(Flow::kSexed);
  RunObserver observer;
  ASSERT_TRUE(RunAllocation(settings, observer));
  const std::string earlier = Reports();

  settings.tolerance = OffsetTolerance{3};
  settings.sequence.emplace();
  for (const std::string_view part :
       {"Allocating", "Weighing the evidence", "Writing the reports"}) {
    for (const std::uint64_t steps : {0U, 20U}) {
      StoppingObserver stopping(part, steps);
      EXPECT_THROW((void)RunAllocation(settings, stopping), RunStopped);
      EXPECT_EQ(Reports(), earlier) << part;
    }
  }
  settings.project = folder_.Path("new");
  StoppingObserver stopping("Allocating", 0);
  EXPECT_THROW((void)RunAllocation(settings, stopping), RunStopped);
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("new")));
}

TEST_F(ExampleRun, RenamingIndividualsChangesNothingButTheirNames) {
  const auto read = [&](const AllocationSettings& settings) {
    RunObserver observer;
    const auto run = RunAllocation(settings, observer);
    EXPECT_TRUE(run);
    return run->result.outcomes;
  };
  AllocationSettings settings = Settings(Flow::kNonSexed);
  const auto before = read(settings);
  const std::string text = ReadFile(settings.parents_file);
  const std::string renamed = std::regex_replace(text, std::regex("Adult"), "Z");
  ASSERT_NE(renamed, text);
  settings.parents_file = folder_.Write("renamed.txt", renamed);
  const auto after = read(settings);
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t i = 0; i < after.size(); ++i) {
    EXPECT_EQ(after[i].pairs, before[i].pairs);
    EXPECT_EQ(after[i].best_likelihood, before[i].best_likelihood);
    EXPECT_EQ(after[i].par1_uncollected, before[i].par1_uncollected);
  }
}

}  // namespace
}  // namespace kaldo

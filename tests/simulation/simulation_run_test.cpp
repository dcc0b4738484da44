// SPDX-License-Identifier: GPL-3.0-or-later
// Whole simulations from files to files.
#include "simulation/simulation_run.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "allocation/allocation_run.h"
#include "runs/project_folder.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/simulation_record.h"
#include "tests/support/case_support.h"
#include "tests/support/run_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::ReadFile;
using test::StoppingObserver;
using test::TempFolder;
using test::WorkingFolder;

using Files = std::vector<std::pair<std::string, std::string>>;

SimulationSettings CaseSettings() {
  SimulationSettings settings;
  settings.project = "project";
  settings.loci_file = "loci.txt";
  settings.iterations = 2;
  settings.offspring_per_iteration = 16;
  settings.print_iterations = true;
  settings.print_subset_statistics = true;
  settings.keep = KeptFiles{true, false, false};
  settings.seed = 7;
  return settings;
}

void ExpectCase(const std::string& name, const SimulationSettings& settings,
                std::string_view saved_loci) {
  RunObserver observer;
  test::ExpectCase(
      name, [&] { return RunSimulation(settings, observer); },
      [&] { EXPECT_EQ(ReadFile("SAUVLOCUSTULM.txt"), saved_loci); });
}

// No draw matters here. At "Alike" everybody is 100100; at "Telling" both collected parents are
// 150150 and every uncollected one 154154 (the gap of S2 counts on 154). Errors are off. A quarter
// of the parents is collected: of 16 pseudo-offspring 1, 6 and 9 come from two, one and no
// collected parent, and these classes weigh 1/16, 6/16 and 9/16.
//
// "Alike" alone: the only pair of collected parents fits everybody and is always allocated. Right
// sides: both, one, none: 1/16 + 6/16 x 1/2 = 0.25 correct.
// With "Telling": whoever has a 154 has no pair, which is wrong for the one collected true parent
// of the second class: 1/16 + 6/16 x 1/2 + 9/16 = 0.8125. Of 30/32 sides without a parent 24/32 are
// right: 0.8. Of the 48 alleles of 2 + 6 parents and 16 pseudo-offspring 4 + 2 + 6 are 150.
TEST(SimulationRun, WritesTheReportsOfANonSexedSequenceWorkedOutByHand) {
  SimulationSettings settings = CaseSettings();
  settings.sets[0].collected_file = "parents.txt";
  settings.sets[0].uncollected_sample = "sample.txt";
  settings.sets[0].uncollected = 6;
  settings.error_model.kind = ErrorKind::kNoError;
  settings.strategy = LociStrategy::kCumulative;
  settings.sequence = {2, 1};
  ExpectCase("simulation-non-sexed", settings, "Telling Alike ");
}

// Again no draw matters. One collected male, 150150 at "Telling", and one female, 161161; two
// uncollected males, 152152, and females, 161161 like the collected one. An allele may be read one
// unit distance (2 bp) longer, with probability 0.0005: less than a draw can tell from 0, so that
// all are read right, but more than nothing, so that the only pair has a likelihood for everybody.
// pm = 3/4 and pf = 1/2 make 6, 6, 2 and 2 pseudo-offspring, weighing 3/8, 3/8, 1/8 and 1/8.
//
// "Alike" alone: all sides are allocated: 3/8 + 3/8 x 1/2 + 1/8 x 1/2 = 0.625 correct, below the
// criterion. "Telling" alone: a 152 speaks against the male (offset 1, tolerance 0), nothing
// against the female. Right are all of class 1, half of class 2 (the mother is not the female), all
// of class 3, half of class 4: 0.75, just the criterion; both loci together do not run any more.
// The pair itself is right on both sides, on his, on hers, on none. Distances of 2 and 9 bp are out
// of step. Of 44 alleles 14, 22 and 8 are 150, 161 and 152, listed so below the sorted sizes.
TEST(SimulationRun, WritesTheReportsOfASexedSearchWorkedOutByHand) {
  SimulationSettings settings = CaseSettings();
  settings.flow = Flow::kSexed;
  settings.procedure = Procedure::kPreParental;
  settings.sets = {ParentalSet{"", "males.txt", 1, "other males.txt", 2, 3, 1},
                   ParentalSet{"", "females.txt", 1, "females.txt", 2, 4, 4}};
  settings.tolerance = OffsetTolerance{0};
  settings.error_model = {ErrorKind::kNonUniform, 0, 0, 0, 0.9995, 0.0005, 0};
  settings.strategy = LociStrategy::kMinimal;
  settings.criterion = 0.75;
  ExpectCase("simulation-sexed", settings, "Alike Telling ");
}

/// Simulations with the example data as collected parents and as samples, in a folder of their own.
class ExampleSimulation : public testing::Test {
 protected:
  SimulationSettings Settings(Flow flow, Procedure procedure = Procedure::kPreParental) const {
    SimulationSettings settings;
    settings.flow = flow;
    settings.procedure = procedure;
    settings.project = "project";
    const std::string data = std::string(KALDO_ROOT) + "/examples/non-sexed/";
    settings.loci_file = data + "loci.txt";
    for (ParentalSet& set : settings.sets) {
      set = {data + "parents.txt", data + "offspring.txt", 9, data + "offspring.txt", 6, 3, 2};
    }
    settings.iterations = 5;
    settings.offspring_per_iteration = 20;
    settings.seed = 4294967295;
    return settings;
  }

  void RunWell(const SimulationSettings& settings) const {
    RunObserver observer;
    const auto run = RunSimulation(settings, observer);
    ASSERT_TRUE(run) << SentenceOf(run.error()) << ' ' << DetailLine(run.error());
  }

  /// Every file but the run record, which tells the time; those of the working folder too.
  Files Results() const {
    Files files;
    for (const std::string folder : {".", "project"}) {
      for (const std::string& name : folder_.FilesIn(folder)) {
        const std::string path = folder_.Path(folder + '/' + name);
        if (name != "Run record.toml" && std::filesystem::is_regular_file(path)) {
          files.emplace_back(name, ReadFile(path));
        }
      }
    }
    return files;
  }

  bool Has(std::string_view file) const {
    return std::filesystem::exists(folder_.Path("project") + std::string(file));
  }

  TempFolder folder_;                     // NOLINT(misc-non-private-member-variables-in-classes)
  WorkingFolder here_{folder_.Path("")};  // NOLINT(misc-non-private-member-variables-in-classes)
};

TEST_F(ExampleSimulation, GivesTheSameFilesForAnyNumberOfThreadsAndOthersForAnotherSeed) {
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    SimulationSettings settings = Settings(flow);
    settings.keep = KeptFiles{true, true, true};
    settings.print_iterations = true;
    settings.scores_confidence = true;
    settings.start_with = 7;
    settings.criterion = 0.4;  // reached by a later subset: those behind it are begun in vain
    Files of_one_thread;
    for (const LociStrategy strategy : {LociStrategy::kMinimal, LociStrategy::kCumulative}) {
      settings.strategy = strategy;
      of_one_thread.clear();
      for (const unsigned threads : {1U, 2U, 7U, 1U}) {
        settings.threads = threads;
        RunWell(settings);
        if (of_one_thread.empty()) {
          of_one_thread = Results();
        }
        EXPECT_EQ(Results(), of_one_thread) << threads;
      }
    }
    settings.seed = 1;
    RunWell(settings);
    const Files of_another_seed = Results();
    ASSERT_EQ(of_another_seed.size(), of_one_thread.size());
    for (std::size_t i = 0; i < of_one_thread.size(); ++i) {
      const auto& [name, text] = of_one_thread[i];
      const bool tells_genotypes = name.ends_with(".txt") || name.ends_with("matrices.xls");
      if (name == "SAUVLOCUSTULM.txt") {
        EXPECT_EQ(text, of_another_seed[i].second);
      } else if (tells_genotypes || name == "Service file.xls") {
        EXPECT_NE(text, of_another_seed[i].second) << name;
      }
    }
    std::filesystem::remove_all("project");
  }
}

/// The cells of a table by the text of its first three.
std::map<std::string, std::vector<double>> ReadReliability() {
  std::istringstream table(ReadFile("project/Reliability.tsv"));
  std::map<std::string, std::vector<double>> rows;
  std::string line;
  std::getline(table, line);
  while (std::getline(table, line)) {
    std::istringstream cells(line);
    std::string row;
    std::string from;
    std::string to;
    cells >> row >> from >> to;
    for (std::string cell; cells >> cell;) {
      rows[row + ' ' + from + ' ' + to].push_back(cell == "NA" ? -1 : std::stod(cell));
    }
  }
  return rows;
}

/// The names that an allocation of the pseudo-offspring is sure of, with their probabilities.
struct Name {
  double probability;
  bool is_right;
};

void ExpectNames(const std::vector<double>& cells, const std::vector<Name>& names, double from,
                 double to, double collected_sides) {
  double sides = 0;
  double right = 0;
  double sum = 0;
  for (const Name& name : names) {
    if (name.probability >= from && (name.probability < to || to == 1)) {
      sides += 1;
      right += name.is_right ? 1 : 0;
      sum += name.probability;
    }
  }
  const std::vector<double> expected = {sides,
                                        right,
                                        right / collected_sides,
                                        sides - sum,
                                        sides - right,
                                        sides > 0 ? sum / sides : -1,
                                        sides > 0 ? right / sides : -1};
  ASSERT_EQ(cells.size(), expected.size());
  for (std::size_t k = 0; k < cells.size(); ++k) {
    EXPECT_NEAR(cells[k], expected[k], 1e-5) << from << " to " << to << ", cell " << k;
  }
}

// Kept pseudo-offspring are allocated like real ones. The sample has no allele that the collected
// parents lack, so that both runs know the same alleles.
TEST_F(ExampleSimulation, ScoresThePosteriorsOfAnAllocationOfItsPseudoOffspring) {
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    SimulationSettings settings = Settings(flow, Procedure::kParental);
    const std::string parents = settings.sets[0].collected_file;
    for (ParentalSet& set : settings.sets) {
      set.uncollected_sample = parents;
      set.uncollected = 20;
      set.estimated_uncollected = 3;
    }
    settings.error_model = ErrorModel{};
    settings.iterations = 1;
    settings.offspring_per_iteration = 120;
    settings.loci_in_use = {"Mir03Di", "Mir14Di", "Mir05Tet"};
    settings.keep = KeptFiles{true, true, true};
    settings.confidence_level = 0.7;
    RunWell(settings);
    const Files without = Results();
    settings.scores_confidence = true;
    RunWell(settings);
    const Files with_scores = Results();
    EXPECT_EQ(with_scores.size(), without.size() + 1);
    for (const auto& file : without) {
      EXPECT_NE(std::find(with_scores.begin(), with_scores.end(), file), with_scores.end())
          << file.first << " is another one";
    }

    std::vector<std::array<std::uint32_t, 2>> truth;
    std::string young;
    std::istringstream kept(ReadFile("project/pseudo-offspring.txt"));
    for (std::string line; std::getline(kept, line);) {
      std::istringstream words(line);
      words >> truth.emplace_back()[0] >> truth.back()[1];
      std::string genotypes;
      std::getline(words, genotypes);
      young += 'K' + std::to_string(truth.size()) + genotypes + '\n';
    }
    AllocationSettings allocation;
    allocation.flow = flow;
    allocation.project = "allocation";
    allocation.may_replace_other_flow = true;
    allocation.loci_file = settings.loci_file;
    allocation.parents_file = allocation.males_file = allocation.females_file = parents;
    allocation.offspring_file = folder_.Write("young.txt", young);
    allocation.loci_in_use = settings.loci_in_use;
    allocation.error_model = settings.error_model;
    RunObserver observer;
    const auto run = RunAllocation(allocation, observer);
    ASSERT_TRUE(run) << SentenceOf(run.error()) << ' ' << DetailLine(run.error());

    std::vector<Name> names;
    double collected = 0;
    for (std::size_t i = 0; i < truth.size(); ++i) {
      for (std::size_t k = 0; k < 2; ++k) {
        collected += truth[i][k] < run->input.offspring.begin ? 1 : 0;
        const auto& named = *run->result.confidence->offspring[i].sides[k].candidate;
        names.push_back({named.probability,
                         named.slot.Value() == truth[i][k] ||
                             (flow == Flow::kNonSexed && named.slot.Value() == truth[i][1 - k])});
      }
    }
    const auto rows = ReadReliability();
    EXPECT_EQ(rows.size(), 12U);
    for (const auto& [row, cells] : rows) {
      std::istringstream limits(row.substr(row.find(' ')));
      double from = 0;
      double to = 0;
      limits >> from >> to;
      ExpectNames(cells, names, from, to, collected);
    }
    std::filesystem::remove_all("project");
  }
}

/// The columns of Subsets.tsv by their heads, a cell for each subset in the order of the run.
std::map<std::string, std::vector<std::string>> ReadSubsets() {
  std::istringstream table(ReadFile("project/Subsets.tsv"));
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(table, line);) {
    std::istringstream cells(line);
    rows.emplace_back();
    for (std::string cell; std::getline(cells, cell, '\t');) {
      rows.back().push_back(cell);
    }
  }
  std::map<std::string, std::vector<std::string>> columns;
  for (std::size_t column = 0; column < rows.front().size(); ++column) {
    auto& cells = columns[rows.front()[column]];
    cells.resize(rows.size() - 1);
    for (std::size_t row = 1; row < rows.size(); ++row) {
      cells[std::stoul(rows[row][1]) - 1] = rows[row][column];
    }
  }
  return columns;
}

/// What a subset tells but for its place among the others.
std::vector<std::string> CellsOf(const std::map<std::string, std::vector<std::string>>& columns,
                                 std::size_t subset) {
  std::vector<std::string> cells;
  for (const auto& [head, column] : columns) {
    if (head != "rank" && head != "run") {
      cells.push_back(column[subset]);
    }
  }
  return cells;
}

TEST_F(ExampleSimulation, EndsASubsetWithTheFirstTenThatIsExactEnough) {
  for (const RandomSource random : {RandomSource::kDefault, RandomSource::kModern}) {
    SimulationSettings settings = Settings(Flow::kSexed);
    settings.random = random;
    settings.iterations = 70;
    settings.strategy = LociStrategy::kCumulative;
    settings.start_with = 4;
    RunWell(settings);
    const auto full = ReadSubsets();
    settings.until_error = std::stod(full.at("population_any_se").at(1)) * 1.3;
    RunWell(settings);
    const Files expected = Results();
    const auto ended = ReadSubsets();
    std::set<std::string> lengths;
    for (std::size_t subset = 0; subset < ended.at("run").size(); ++subset) {
      const std::int32_t n = std::stoi(ended.at("iterations")[subset]);
      lengths.insert(ended.at("iterations")[subset]);
      EXPECT_TRUE(n % 10 == 0 && n >= 20 && n <= 70) << n;
      EXPECT_TRUE(n == 70 ||
                  std::stod(ended.at("population_any_se")[subset]) < *settings.until_error);
      EXPECT_TRUE(n != 70 || CellsOf(ended, subset) == CellsOf(full, subset));
    }
    EXPECT_GT(lengths.size(), 1U) << "a case that tells nothing";
    for (const unsigned threads : {2U, 7U}) {
      settings.threads = threads;
      RunWell(settings);
      EXPECT_EQ(Results(), expected) << threads;
    }
    // The first subset is that of a run of as many iterations, and of no fewer.
    settings.until_error.reset();
    settings.start_with = 4;
    const std::int32_t first = std::stoi(ended.at("iterations").front());
    for (std::int32_t n = 20; n <= first; n += 10) {
      settings.iterations = n;
      RunWell(settings);
      const bool is_exact = std::stod(ReadSubsets().at("population_any_se").front()) <
                            std::stod(full.at("population_any_se").at(1)) * 1.3;
      EXPECT_TRUE(n < first ? !is_exact : is_exact || first == 70) << n;
    }
    EXPECT_EQ(CellsOf(ReadSubsets(), 0), CellsOf(ended, 0));
  }
}

TEST_F(ExampleSimulation, GivesAllSubsetsTheRandomNumbersOfTheFirstWhereWanted) {
  for (const RandomSource random : {RandomSource::kDefault, RandomSource::kModern}) {
    SimulationSettings settings = Settings(Flow::kNonSexed);
    settings.random = random;
    settings.loci_in_use = {"Mir03Di", "Mir14Di", "Mir05Tet"};
    settings.strategy = LociStrategy::kAll;
    settings.subset_randoms = SubsetRandoms::kCommon;
    RunWell(settings);
    const auto common = ReadSubsets();
    settings.strategy = LociStrategy::kCumulative;
    for (std::size_t subset = 0; subset < common.at("run").size(); ++subset) {
      std::istringstream names(common.at("loci")[subset]);
      settings.loci_in_use.emplace();
      for (std::string name; names >> name;) {
        settings.loci_in_use->push_back(name);
      }
      settings.start_with = static_cast<std::int32_t>(settings.loci_in_use->size());
      RunWell(settings);
      EXPECT_EQ(CellsOf(ReadSubsets(), 0), CellsOf(common, subset));
    }
  }
}

// With alleles of two digits the default draws cannot tell a frequency below 0.01 from 0: the rare
// alleles of this sample, sizes 20 and more, are lost.
TEST_F(ExampleSimulation, DrawsRareAllelesWithModernNumbersAndElseAgreesWithTheDefault) {
  folder_.Write("loci", "Loc1");
  const auto correct = [&](RandomSource random, bool two_digits) {
    std::string sample;
    for (int place = 0; place < 500; ++place) {
      const int shift = two_digits ? 0 : 100;
      sample +=
          fmt::format("S{} {}{}\n", place, 10 + shift, place < 4 ? 20 + place + shift : 10 + shift);
    }
    SimulationSettings settings = Settings(Flow::kNonSexed);
    settings.loci_file = "loci";
    settings.sets[0].pseudo_collected_sample = folder_.Write("sample", sample);
    settings.sets[0].uncollected_sample = settings.sets[0].pseudo_collected_sample;
    settings.sets[0].pseudo_collected = 50;
    settings.sets[0].uncollected = 200;
    settings.iterations = 100;
    settings.offspring_per_iteration = 100;
    settings.error_model.kind = ErrorKind::kNoError;
    settings.random = random;
    RunObserver observer;
    const auto run = RunSimulation(settings, observer);
    EXPECT_EQ(run->input.warnings.size(), two_digits && random == RandomSource::kDefault ? 1U : 0U);
    return run->result.LastSubset().estimates.population[0];
  };
  const Estimate fine = correct(RandomSource::kDefault, false);
  const Estimate modern = correct(RandomSource::kModern, false);
  EXPECT_NEAR(fine.value, modern.value, 5 * std::hypot(fine.error, modern.error));
  const auto has_rare = [&] {
    const std::string parents = ReadFile("project/uncollected parents.txt");
    return std::regex_search(parents, std::regex(" (2.|..2)"));
  };
  EXPECT_EQ(correct(RandomSource::kModern, true).value, modern.value);
  EXPECT_TRUE(has_rare());
  (void)correct(RandomSource::kDefault, true);
  EXPECT_FALSE(has_rare());
}

/// Where nobody is undefined nothing changes. A locus at which most parents are undefined tells
/// less than one at which all are typed, and more than none.
TEST_F(ExampleSimulation, TakesUndefinedParentsWhereTheyAreAllowed) {
  SimulationSettings settings = Settings(Flow::kNonSexed, Procedure::kParental);
  settings.error_model.kind = ErrorKind::kNoError;
  settings.loci_in_use = {"Loc1"};
  settings.offspring_per_iteration = 400;
  folder_.Write("loci", "Loc1");
  settings.loci_file = "loci";
  const auto correct = [&](std::string_view parents) {
    settings.sets[0].collected_file = folder_.Write("parents", parents);
    settings.sets[0].uncollected_sample = folder_.Write("sample", "S 124126\nT 128130\n");
    RunObserver observer;
    const auto run = RunSimulation(settings, observer);
    return run ? run->result.LastSubset().probabilities.any : -1;
  };
  const std::string_view all_typed = "A 100102\nB 104106\nC 108110\nD 112114\nE 116118\n";
  const double of_all = correct(all_typed);
  const std::string_view undefined = "A 100102\nB 000000\nC 108110\nD 000000\nE 116118\n";
  EXPECT_EQ(correct(undefined), -1);
  settings.allow_undefined_parents = true;
  EXPECT_EQ(correct(all_typed), of_all);
  const double of_some = correct(undefined);
  EXPECT_LT(of_some, of_all);
  EXPECT_GT(of_some, 0.3);
}

TEST_F(ExampleSimulation, RemovesFilesThatTheOptionsLeaveWithoutContent) {
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    const bool sexed = flow == Flow::kSexed;
    const SimulationTexts& texts = TextsOf(flow);
    SimulationSettings settings = Settings(flow);
    settings.keep = KeptFiles{true, true, true};
    settings.print_iterations = true;
    settings.strategy = LociStrategy::kCumulative;
    settings.start_with = 9;
    RunWell(settings);
    std::vector<std::string_view> optional = texts.group_files;
    optional.insert(optional.end(), {texts.detailed_file, texts.matrices_file, kPseudoOffspringFile,
                                     kSequenceResultsFile});
    for (const std::string_view file : optional) {
      EXPECT_TRUE(Has(file)) << file;
    }
    settings.keep = KeptFiles{};
    settings.print_iterations = false;
    settings.strategy = LociStrategy::kChoice;
    RunWell(settings);
    for (const std::string_view file : optional) {
      EXPECT_FALSE(Has(file)) << file;
    }
    EXPECT_EQ(folder_.FilesIn("project").size(), sexed ? 8U : 7U)
        << "the summary, a table per class and the global one, service file and run record";
    settings.keep.reset();
    RunWell(settings);
    EXPECT_EQ(Has(kPseudoOffspringFile), !sexed) << "kept unless told otherwise";
    std::filesystem::remove_all("project");
  }

  // Nobody uncollected, and nobody made: a file without individuals is no file.
  SimulationSettings settings = Settings(Flow::kNonSexed);
  settings.keep = KeptFiles{true, true, true};
  RunWell(settings);
  EXPECT_TRUE(Has("/uncollected parents.txt"));
  settings.sets[0].uncollected = 0;
  RunWell(settings);
  EXPECT_FALSE(Has("/uncollected parents.txt"));
  EXPECT_TRUE(Has("/pseudo-collected parents.txt"));
  settings.sets[0].uncollected = 6;
  settings.offspring_per_iteration = 1;
  RunWell(settings);
  EXPECT_TRUE(Has("/uncollected parents.txt"));
  EXPECT_FALSE(Has(kPseudoOffspringFile));
  EXPECT_FALSE(Has("/Iterations - transmission matrices.xls"));
}

TEST_F(ExampleSimulation, AStoppedRunLeavesEarlierResultsAsTheyWere) {
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    std::filesystem::remove_all("project");  // no flow replaces results of the other unasked
    RunWell(Settings(flow));
    const Files earlier = Results();
    SimulationSettings settings = Settings(flow);
    settings.seed = 5;
    settings.iterations = 40;
    settings.keep = KeptFiles{true, true, true};
    settings.loci_in_use = {"Mir03Di"};
    for (const std::string_view part : {"Simulating", "Writing the transmission matrices"}) {
      for (const std::uint64_t steps : {0U, 10U}) {
        StoppingObserver stopping(part, steps);
        EXPECT_THROW((void)RunSimulation(settings, stopping), RunStopped) << part << ' ' << steps;
        EXPECT_EQ(Results(), earlier) << part;
      }
    }
    settings.project = "new";
    StoppingObserver stopping("Simulating", 0);
    EXPECT_THROW((void)RunSimulation(settings, stopping), RunStopped);
    EXPECT_FALSE(std::filesystem::exists("new"));
  }
  SimulationSettings settings = Settings(Flow::kSexed);
  settings.project.clear();
  settings.loci_file.clear();
  RunObserver observer;
  EXPECT_EQ(SentenceOf(RunSimulation(settings, observer).error()), "Please enter name of project!");
}

}  // namespace
}  // namespace kaldo

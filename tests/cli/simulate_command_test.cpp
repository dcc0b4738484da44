// SPDX-License-Identifier: GPL-3.0-or-later
// `kaldo simulate` and the repetition of its runs, run inside the test.
#include <filesystem>
#include <gmock/gmock.h>
#include <regex>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "base/version.h"
#include "tests/cli/command_support.h"
#include "tests/support/run_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::Arguments;
using test::ExpectRefusal;
using test::Outcome;
using test::ReadFile;
using test::RunCommand;
using test::TempFolder;
using test::Words;
using test::WorkingFolder;
using test::operator+;  // NOLINT(misc-unused-using-decls): every + here is it
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

/// A small study in a folder of its own, which is the working folder: the saved loci go there.
class SimulateCommand : public testing::Test {
 protected:
  SimulateCommand() {
    folder_.Write("loci", "A B C\n");
    folder_.Write("fish",
                  "P1 100102 200204 150150\n"
                  "P2 104104 208208 152154\n"
                  "P3 100106 200202 150152\n");
  }

  static Arguments Common() {
    return Words("simulate --project p --loci loci --iterations 3 --offspring-per-iteration 12");
  }
  static Arguments NonSexed() {
    return Common() +
           Words("--replace --collected-parents fish --uncollected-sample fish --uncollected 2.5");
  }
  static Arguments Sexed() {
    Arguments arguments = Common() + Words("--replace --sexed");
    for (const std::string sex : {"male", "female"}) {
      arguments = arguments +
                  Words(fmt::format("--pseudo-collected-{0}-sample fish --uncollected-{0}-sample "
                                    "fish --pseudo-collected-{0}s 2 --uncollected-{0}s 2 "
                                    "--estimated-collected-{0}s 2 --estimated-uncollected-{0}s 1",
                                    sex));
    }
    return arguments;
  }
  /// The same command with another value of one option.
  static Arguments With(Arguments arguments, const std::string& option, const std::string& value) {
    *(std::find(arguments.begin(), arguments.end(), option) + 1) = value;
    return arguments;
  }

  std::vector<std::pair<std::string, std::string>> TakeReports() const {
    return test::TakeReports(folder_, "p");
  }

  TempFolder folder_;  // NOLINT(misc-non-private-member-variables-in-classes)

 private:
  WorkingFolder here_{folder_.Path("")};
};

TEST_F(SimulateCommand, RefusalsWriteNothing) {
  ExpectRefusal({"simulate"},
                "Please enter name of project!\n--project is needed; so are --loci, ");
  ExpectRefusal(With(NonSexed(), "--project", ""), "Please enter name of project!\n");
  ExpectRefusal(NonSexed() + Arguments{"--strategy", "all", "--start-with", "4"},
                "Fewer loci are in use than the number of loci to start with!\n3 loci in use");
  folder_.Write("fish", "P1 100102 200204 150150\nP2 104104 000208 152154\n");
  ExpectRefusal(With(NonSexed(), "--collected-parents", "fish"),
                "Parental loci should not contain undefined alleles i.e. represented by a string "
                "of 0s!\nfish, line 2, record 2 (P2), locus B: \"000208\" holds");
  EXPECT_FALSE(std::filesystem::exists("p"));
  EXPECT_FALSE(std::filesystem::exists("SAUVLOCUSTULM.txt"));
}

TEST_F(SimulateCommand, TellsTheResultTheSeedAndThatItIsDone) {
  const Outcome outcome = RunCommand(NonSexed() + Arguments{"--seed", "4294967295"});
  EXPECT_EQ(outcome.code, ExitCode::kDone);
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_THAT(outcome.out, StartsWith("KALDO " + std::string(Version()) +
                                      "\nType of simulations : non-sexed parental\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\n  seed 4294967295\n"));
  // 3 of 5.5 parents are collected: 12 x (6/11)^2 = 3.57 and so on.
  for (const std::string row : {"C X C :              3 ", "C X U :              5 ",
                                "U X U :              2 ", "GLOBAL              10 "}) {
    EXPECT_THAT(outcome.out, HasSubstr("\n  " + row));
  }
  EXPECT_THAT(outcome.out, EndsWith("\ncalculations completed!\n"));
  EXPECT_THAT(ReadFile("p/Service file.xls"),
              StartsWith("Seed of the random numbers :\t4294967295\n\nLIST OF ALLELES"));
  EXPECT_EQ(ReadFile("SAUVLOCUSTULM.txt"), "A B C ");
  for (const std::string mine : {"P1 100102 200204\n", "Pond\tP1\t1012"}) {
    folder_.Write("SAUVLOCUSTULM.txt", mine);
    EXPECT_THAT(RunCommand(NonSexed()).err, HasSubstr("a file of that name is there"));
    EXPECT_EQ(ReadFile("SAUVLOCUSTULM.txt"), mine) << "nobody would get it back";
  }
  for (const std::string of_other_loci : {"", "Ssa85 Ssa197 ", "left by an earlier run"}) {
    folder_.Write("SAUVLOCUSTULM.txt", of_other_loci);
    EXPECT_THAT(RunCommand(NonSexed()).err, Not(HasSubstr("SAUVLOCUSTULM.txt")));
    EXPECT_EQ(ReadFile("SAUVLOCUSTULM.txt"), "A B C ");
  }

  const Outcome sexed =
      RunCommand(Sexed() + Arguments{"--strategy", "minimal", "--criterion", "0", "--seed", "1"});
  EXPECT_EQ(sexed.code, ExitCode::kDone);
  EXPECT_THAT(sexed.out, HasSubstr("\nType of simulations : sexed preparental\n"));
  EXPECT_THAT(sexed.out, HasSubstr("\nSubsets of loci run: 1; any allocation correct:\n"));
  EXPECT_THAT(sexed.out, HasSubstr("\nThe criterion 0 has been reached with 1 loci.\n"));
  EXPECT_THAT(sexed.out, EndsWith("xls\n\nCalculations completed!\n"));

  // The sizes of collected parents are in every catalogue, whatever the seed draws for the others.
  folder_.Write("fish", "P1 100102 200204 150150\nP2 104107 208208 152154\n");
  const std::string stepping =
      "xls\n\nSome allelic distances not in step with the smallest difference. Please read the "
      "stepping error file !\n";
  EXPECT_THAT(RunCommand(NonSexed()).out, EndsWith(stepping + "calculations completed!\n"));
}

// 3 of 5.5 parents are collected: p p = 0.2975, 2 p q = 0.4959 and q q = 0.2066, of 12 truncated to
// 3, 5 and 2. Each iteration draws 3 parents and 10 offspring at 3 loci: 3 x 6 + 10 x 14 = 158.
TEST_F(SimulateCommand, ACheckTellsWhatTheRunWillDo) {
  const Arguments run = NonSexed() + Words("--strategy minimal --start-with 2");
  const Outcome told = RunCommand(Arguments{"check"} + run);
  EXPECT_EQ(told.code, ExitCode::kDone) << told.err;
  for (const std::string line :
       {"C X C                        3    0.2975", "C X U                        5    0.4959",
        "U X U                        2    0.2066",
        "Subsets of loci: 4, with 3 iterations each; about 1.9e+03 random draws.",
        "Expected time: at most about 1 second with "}) {
    EXPECT_THAT(told.out, HasSubstr('\n' + line));
  }
  const std::string json =
      RunCommand(Arguments{"check"} + run + Words("--format json --threads 1")).out;
  for (const std::string pair : {"\"pseudo_offspring\": 5,", "\"subsets\": 4,",
                                 "\"random_draws\": 1896.0,", "\"may_end_earlier\": true"}) {
    EXPECT_THAT(json, HasSubstr(pair));
  }
}

TEST_F(SimulateCommand, RerunReproducesTheFiles) {
  const std::vector<Arguments> choices = {
      NonSexed() + Arguments{"--seed", "3", "--keep", "all", "--print-iterations"},
      NonSexed() + Arguments{"--strategy", "cumulative", "--sequence", "3,1,2"},
      Sexed() + Arguments{"--seed", "0", "--error", "uniform=0.03", "--use", "A,C"},
      Sexed() +
          Words("--seed 9 --random modern --strategy all --subset-randoms common --until-se 0.3"),
      Sexed() + Arguments{"--keep", "parents,matrices", "--strategy", "all", "--start-with", "2",
                          "--print-subset-statistics", "--tolerance", "0"},
  };
  for (const Arguments& choice : choices) {
    const Outcome first = RunCommand(choice);  // twice with a seed, twice with the clock
    ASSERT_EQ(first.code, ExitCode::kDone) << first.err;
    const auto reports = TakeReports();
    std::smatch seed;
    ASSERT_TRUE(std::regex_search(first.out, seed, std::regex("\n  seed ([0-9]+)\n")));
    // A record of last year: the seed must not come from the clock again.
    std::string record = ReadFile("p/Run record.toml");
    if (seed[1].str().size() > 1) {
      record = std::regex_replace(record, std::regex(seed[1].str()), "1735689600");
      folder_.Write("p/Run record.toml", record);
      const Outcome other = RunCommand({"rerun", "p/Run record.toml", "--overwrite"});
      EXPECT_THAT(other.out, HasSubstr("\n  seed 1735689600\n"));
      EXPECT_NE(TakeReports(), reports);
      record = std::regex_replace(record, std::regex("1735689600"), seed[1].str());
      folder_.Write("p/Run record.toml", record);
    }
    std::filesystem::remove("SAUVLOCUSTULM.txt");
    const Outcome again =
        RunCommand({"rerun", "p/Run record.toml", "--threads", "2", "--overwrite"});
    EXPECT_FALSE(std::filesystem::exists("SAUVLOCUSTULM.txt")) << "not in the folder of the record";
    EXPECT_EQ(again.code, ExitCode::kDone);
    EXPECT_EQ(again.out, first.out);
    EXPECT_THAT(again.err, EndsWith(" were replaced; the input files are the same.\n"));
    EXPECT_EQ(RunCommand({"rerun", "p/Run record.toml"}).out,
              fmt::format("identical, {0} of {0} files\n", reports.size()));
    EXPECT_EQ(TakeReports(), reports) << testing::PrintToString(choice);
  }
}

TEST_F(SimulateCommand, RerunRefusesWhatItCannotRepeat) {
  const std::vector<std::pair<std::string, std::string>> edits = {
      {"iterations = 3\n", ""},
      {"strategy = \"choice\"", "strategy = \"best\""},
      {"keep = .*", "keep = [\"pets\"]"},
      {"uncollected = 2.5", "uncollected = \"2.5\""},
      {"\ncollected = .*", ""},
      {"procedure = \"parental\"", "procedure = \"preparental\""},
      {"procedure = \"parental\"", "procedure = \"paternal\""},
      {"criterion = .*", ""},
  };
  for (const auto& [pattern, replacement] : edits) {
    ASSERT_EQ(RunCommand(NonSexed()).code, ExitCode::kDone);
    const std::string record = ReadFile("p/Run record.toml");
    const std::string edited = std::regex_replace(record, std::regex(pattern), replacement);
    ASSERT_NE(edited, record) << pattern;
    folder_.Write("p/Run record.toml", edited);
    const Outcome outcome = RunCommand({"rerun", "p/Run record.toml"});
    EXPECT_EQ(outcome.code, ExitCode::kBadInput) << pattern << " -> " << replacement;
    EXPECT_THAT(outcome.err, HasSubstr("This run record cannot be used!\n"));
  }
}

}  // namespace
}  // namespace kaldo

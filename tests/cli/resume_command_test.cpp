// SPDX-License-Identifier: GPL-3.0-or-later
// Runs that are stopped halfway, and the same commands with --resume.
#include <gmock/gmock.h>

#include <gtest/gtest.h>

#include "allocation/allocation_command.h"
#include "allocation/allocation_run.h"
#include "interchange/export/allocation_exporter.h"
#include "simulation/simulation_command.h"
#include "simulation/simulation_run.h"
#include "tests/cli/command_support.h"
#include "tests/support/run_support.h"

namespace kaldo {
namespace {

using test::Arguments;
using test::ExpectRefusal;
using test::RunCommand;
using test::Words;
using test::operator+;  // NOLINT(misc-unused-using-decls): every + here is it
using testing::HasSubstr;

constexpr const char* kRefused = "The unfinished run cannot be resumed!\n";

class ResumeCommand : public testing::Test {
 protected:
  ResumeCommand() {
    std::filesystem::copy(std::string(KALDO_ROOT) + "/examples/non-sexed", folder_.Path(""));
  }

  static Arguments CommandWith(const std::string& command, TypedSettings typed) {
    Arguments arguments = {command};
    for (const auto& [key, text] : typed) {
      std::string option = "--" + (key == "collected" ? "collected-parents" : key);
      std::replace(option.begin(), option.end(), '_', '-');
      arguments = arguments + Arguments{option, text};
    }
    return arguments;
  }

  /// The command in a project without an unfinished run, and then the one that is resumed.
  void ExpectSameResults(const std::string& command, TypedSettings typed) const {
    const auto resumed = RunCommand(CommandWith(command, typed) + Arguments{"--resume"});
    EXPECT_EQ(resumed.code, ExitCode::kDone) << resumed.err;
    EXPECT_THAT(resumed.err, HasSubstr(" were done by the unfinished run."));
    const auto reports = test::TakeReports(folder_, typed["project"]);
    EXPECT_EQ(RunCommand(CommandWith(command, typed)).code, ExitCode::kDone);
    EXPECT_EQ(test::TakeReports(folder_, typed["project"]), reports);
  }

  test::TempFolder folder_;              // NOLINT(misc-non-private-member-variables-in-classes)
  LocalThreads workforce_{{{}, {}, 0}};  // NOLINT(misc-non-private-member-variables-in-classes)

 private:
  test::WorkingFolder here_{folder_.Path("")};
};

TEST_F(ResumeCommand, AllocateGoesOnOrTellsWhichOptionIsAnotherOne) {
  const TypedSettings typed = {{"project", "p"},
                               {"loci", "loci.txt"},
                               {"parents", "parents.txt"},
                               {"offspring", "offspring.txt"},
                               {"sequence", "9,8,7,6,5,4,3,2,1"},
                               {"also", "tsv,html,pedigree"}};
  TypedSettings alone = typed;
  alone["threads"] = "1";  // two threads may both be stopped within their first portion
  test::StoppingObserver observer("Allocating", 100);
  AllocationExporter exports;
  EXPECT_THROW((void)RunAllocation(*AllocationFrom(alone), observer, workforce_, &exports),
               RunStopped);

  const std::map<std::string, std::pair<std::string, std::string>> others = {
      {"tolerance", {"2", "with --tolerance 1, now with --tolerance 2"}},
      {"error", {"uniform=0.02", "with --error uniform=0.01, now with --error uniform=0.02"}},
      {"use", {"Mir03Di", "without --use, now with --use Mir03Di"}},
      {"sequence",
       {"1,2,3,4,5,6,7,8,9", "with --sequence 9,8,7,6,5,4,3,2,1, now with --sequence"}}};
  for (const auto& [key, other] : others) {
    TypedSettings changed = typed;
    changed[key] = other.first;
    ExpectRefusal(CommandWith("allocate", changed) + Arguments{"--resume"},
                  kRefused + ("it was started " + other.second));
  }
  std::filesystem::copy("offspring.txt", "moved.txt");
  TypedSettings changed = typed;
  changed["offspring"] = "parents.txt";
  ExpectRefusal(CommandWith("allocate", changed) + Arguments{"--resume"},
                std::string(kRefused) + "offspring (\"parents.txt\") has changed");
  changed["offspring"] = "moved.txt";
  ExpectSameResults("allocate", changed);
  EXPECT_THAT(test::ReadFile("p/Run record.toml"), HasSubstr("\"Sequence.tsv\""));
}

TEST_F(ResumeCommand, SimulateTakesTheSeedOver) {
  const TypedSettings typed = {{"project", "p"},
                               {"loci", "loci.txt"},
                               {"collected", "parents.txt"},
                               {"uncollected_sample", "offspring.txt"},
                               {"uncollected", "10"},
                               {"iterations", "40"},
                               {"offspring_per_iteration", "20"},
                               {"strategy", "cumulative"},
                               {"until_se", "0.02"},  // some subsets end earlier than others
                               {"keep", "all"}};
  TypedSettings seeded = typed;
  seeded["seed"] = "5";  // as if the clock had chosen it
  test::StoppingObserver observer("Writing the transmission matrices", 10);
  EXPECT_THROW((void)RunSimulation(*SimulationFrom(seeded), observer, workforce_), RunStopped);
  std::filesystem::copy("p", "again");

  EXPECT_EQ(RunCommand(CommandWith("simulate", typed) + Arguments{"--resume"}).code,
            ExitCode::kDone);
  EXPECT_THAT(test::ReadFile("p/Run record.toml"), HasSubstr("\nseed = 5\n"));
  seeded["project"] = "again";
  seeded["seed"] = "1";
  ExpectRefusal(CommandWith("simulate", seeded) + Arguments{"--resume"},
                std::string(kRefused) + "it was started with --seed 5, now with --seed 1");
  seeded["seed"] = "5";
  ExpectSameResults("simulate", seeded);
}

TEST_F(ResumeCommand, ThereMayBeNothingToResume) {
  const Arguments command =
      Words("allocate --project p --loci loci.txt --parents parents.txt --offspring offspring.txt");
  const auto outcome = RunCommand(command + Arguments{"--resume"});
  EXPECT_EQ(outcome.code, ExitCode::kDone);
  EXPECT_EQ(outcome.err,
            "Note: There is no unfinished run in \"p\" to go on with: this one begins anew.\n");
  ExpectRefusal({"rerun", "p", "--resume"}, "--resume requires --project\n");
}

}  // namespace
}  // namespace kaldo

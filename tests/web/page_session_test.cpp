// SPDX-License-Identifier: GPL-3.0-or-later
// What the page for browsers asks the program, against what the command line does and writes.
#include "web/page_session.h"

#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/cli/command_support.h"

namespace kaldo {
namespace {

using test::Arguments;
using test::ReadFile;
using test::RunCommand;
using test::TakeReports;

Json Request(const std::string& name, const std::string& kind, const TypedSettings& typed) {
  return {{"ask", name}, {"kind", kind}, {"typed", typed}};
}

TypedSettings Lake() {
  return {{"project", "lake"},
          {"loci", "loci.txt"},
          {"parents", "parents.txt"},
          {"offspring", "offspring.txt"}};
}

/// What reports tell of a side with its probability: "Adult01 0.99", as short as the page has it.
std::string SideText(const std::string& name, const std::string& probability) {
  return fmt::format("{} {:.4f}", name, std::stod(probability));
}

class PageSessionTest : public testing::Test {
 protected:
  PageSessionTest() { std::filesystem::current_path(folder_.Path(".")); }
  ~PageSessionTest() override { std::filesystem::current_path("/"); }

  void TakeExample(const std::string& name) {
    std::filesystem::copy(fmt::format("{}/examples/{}", KALDO_ROOT, name), folder_.Path("."));
  }

  Json Ask(const Json& request) {
    RunObserver unheard;
    return Json::parse(session_.Answer(request.dump(), unheard));
  }

  Json Table(const std::string& name) { return Ask({{"ask", "table"}, {"name", name}}); }

  /// The cell of a row of the offspring.
  static Json CellOf(const Json& table, std::size_t row, const std::string& key) {
    for (std::size_t k = 0; k < table["columns"].size(); ++k) {
      if (table["columns"][k]["key"] == key) {
        return table["rows"][row][k];
      }
    }
    ADD_FAILURE() << "no column " << key;
    return {};
  }

  test::TempFolder folder_;
  PageSession session_;
};

TEST_F(PageSessionTest, RunsWriteWhatTheCommandLineWrites) {
  TakeExample("non-sexed");
  const Json told = Ask(Request("run", "allocation", Lake()));
  ASSERT_FALSE(told.contains("problem")) << told;
  const auto written = TakeReports(folder_, "lake");
  const auto outcome = RunCommand(
      test::Words("allocate --project lake --loci loci.txt --parents parents.txt --offspring "
                  "offspring.txt"));
  EXPECT_EQ(told["text"], outcome.out);
  EXPECT_EQ(written, TakeReports(folder_, "lake"));

  // And a simulation like it, with the settings that the page is given.
  Json trial = Ask({{"ask", "trial"}});
  trial["typed"].update({{"project", "trial"},
                         {"iterations", "3"},
                         {"seed", "7"},
                         {"keep", "offspring"},
                         {"offspring_per_iteration", "40"}});
  const Json simulated = Ask(Request("run", "simulation", trial["typed"]));
  ASSERT_FALSE(simulated.contains("problem")) << simulated;
  const auto reports = TakeReports(folder_, "trial");
  EXPECT_GT(reports.size(), 3U);
  const auto command = simulated["command"].get<std::string>();
  ASSERT_EQ(RunCommand(test::Words(command.substr(command.find(' ') + 1))).code, ExitCode::kDone)
      << command;
  const Json recorded = Ask({{"ask", "record"}, {"file", "trial/Run record.toml"}});
  EXPECT_EQ(recorded["kind"], "simulation");
  EXPECT_EQ(recorded["typed"].get<TypedSettings>(), trial["typed"].get<TypedSettings>());
  EXPECT_EQ(reports, TakeReports(folder_, "trial"));
}

TEST_F(PageSessionTest, TheTableOfOffspringTellsWhatTheReportsTell) {
  TakeExample("non-sexed");
  const Json told = Ask(Request("run", "allocation", Lake()));
  const Json table = Table("offspring");
  std::istringstream report(ReadFile(folder_.Path("lake/Confidence.tsv")));
  const auto next_line = [&report] {
    std::vector<std::string> cells;
    std::string line;
    std::getline(report, line);
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, '\t');) {
      cells.push_back(cell);
    }
    return cells;
  };
  const auto heads = next_line();
  std::size_t doubted = 0;
  for (std::size_t row = 0; row < table["rows"].size(); ++row) {
    const auto cells = next_line();
    const auto cell = [&](const std::string& head) {
      return cells.at(
          static_cast<std::size_t>(std::find(heads.begin(), heads.end(), head) - heads.begin()));
    };
    EXPECT_EQ(CellOf(table, row, "offspring"), cell("offspring"));
    const Json detail = Ask({{"ask", "offspring"}, {"place", row}});
    for (const std::string side : {"1", "2"}) {
      EXPECT_EQ(
          SideText(CellOf(table, row, "parent" + side), CellOf(table, row, "p" + side).dump()),
          SideText(cell("parent" + side + "_reported"), cell("p_parent" + side + "_reported")));
      EXPECT_EQ(CellOf(table, row, "verdict" + side), cell("parent" + side + "_verdict"));
      // A parent of the best pair is given up where it is excluded at some locus, and only there.
      bool is_excluded = false;
      for (const Json& locus : detail["loci"]) {
        for (const Json& parent : locus["parents"]) {
          is_excluded = is_excluded || parent["fit"] == "excluded";
        }
      }
      const bool any_missing =
          CellOf(table, row, "parent1") == "UC" || CellOf(table, row, "parent2") == "UC";
      EXPECT_EQ(is_excluded, any_missing && !detail["pairs"].empty());
    }
    doubted += CellOf(table, row, "check").is_null() ? 0 : 1;
  }
  EXPECT_TRUE(next_line().empty());
  EXPECT_EQ(told["check"].size(), doubted);
  EXPECT_GT(doubted, 0U);
}

TEST_F(PageSessionTest, ARefusalIsThatOfTheCommandLine) {
  TakeExample("non-sexed");
  std::filesystem::copy(std::string(KALDO_ROOT) + "/examples/foreign/pond.gen", "pond.gen");
  folder_.Write("short.txt", "Young01 124128\n");
  for (const std::string offspring : {"short.txt", "not there.txt", "pond.gen", ""}) {
    TypedSettings typed = Lake();
    typed["offspring"] = offspring;
    const Json answer = Ask(Request("run", "allocation", typed));
    std::string told;
    for (const Json& line : answer["problem"]) {
      told += line.get<std::string>() + '\n';
    }
    const auto outcome =
        RunCommand(Arguments{"allocate", "--project", "lake", "--loci", "loci.txt", "--parents",
                             "parents.txt", "--offspring", offspring});
    EXPECT_EQ(outcome.code, ExitCode::kBadInput);
    EXPECT_EQ(told, outcome.err);
  }
  EXPECT_TRUE(Ask({{"ask", "nothing known"}}).contains("problem"));
  RunObserver unheard;
  EXPECT_TRUE(Json::parse(session_.Answer("no JSON", unheard)).contains("problem"));
}

TEST_F(PageSessionTest, AnImportedStudyIsShownWithTheNamesBeforeIt) {
  std::filesystem::copy(std::string(KALDO_ROOT) + "/examples/foreign/pond.gen", "pond.gen");
  const Json look = Ask({{"ask", "look"}, {"file", "pond.gen"}});
  EXPECT_EQ(look["populations"], true);
  const Json told =
      Ask({{"ask", "command"},
           {"arguments",
            {"import", "pond.gen", "--offspring-populations", "pop3", "--to", "imported"}}});
  ASSERT_EQ(told["code"], 0) << told;
  TypedSettings typed = Lake();
  for (const std::string file : {"loci", "parents", "offspring"}) {
    typed[file] = "imported/" + file + ".txt";
  }
  ASSERT_FALSE(Ask(Request("run", "allocation", typed)).contains("problem"));
  const Json exported = Ask({{"ask", "export"}, {"forms", "tsv,html"}});
  EXPECT_EQ(exported["files"], Json::array({"Allocations.tsv", "Parents.tsv", "Report.html"}));
  const std::string names = ReadFile(folder_.Path("lake/Allocations.tsv"));
  const Json table = Table("offspring");
  for (std::size_t row = 0; row < table["rows"].size(); ++row) {
    const auto name = CellOf(table, row, "offspring").get<std::string>();
    EXPECT_NE(names.find('\n' + name + '\t'), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace kaldo

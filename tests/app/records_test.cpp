// SPDX-License-Identifier: GPL-3.0-or-later
// A run record, opened, leads to the same run again: all screens are filled from it.
#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>
#include <QTimer>
#include <filesystem>
#include <gmock/gmock.h>

#include "app/base/command_text.h"
#include "app/base/text.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

using test::Contents;
using test::ExpectText;
using test::ExpectTold;
using test::PickInDialog;
using test::WithoutCircumstances;

constexpr std::string_view kMayDiffer = "The run may differ from the recorded one.";
constexpr std::string_view kAllocation =
    "kaldo allocate --project p --loci data/loci.txt --offspring data/offspring.txt "
    "--parents data/parents.txt ";

class RecordsTest : public test::MenuTest {
 protected:
  RecordsTest() { WriteStudy(); }

  void RunCommand(std::string_view command) const {
    test::RunCommandLine(folder_.Path(""), Text(command));
  }

  void OpenRecord(const std::string& record) {
    script_.Await("MainMenu").Click("OpenRecord");
    PickInDialog(script_, PathText(folder_.Path(record)));
  }

  void OpenResults(const std::string& folder) {
    script_.Await("MainMenu").Click("OpenResults").TypeHere(Text("a"));
    PickInDialog(script_, PathText(folder_.Path(folder)));
  }

  /// Runs a command, opens its record and confirms all screens. The folder of the results is
  /// emptied before, so that every file in it is a new one.
  void ExpectRepeated(const std::string& command, const std::vector<const char*>& screens) {
    RunCommand(command);
    const Contents first = WithoutCircumstances(ContentsOf("p"));
    ASSERT_GT(first.size(), 3U);
    OpenRecord("p/Run record.toml");
    script_.Await(screens.front());
    ExpectText(script_, "LociFile", Text("data/loci.txt"));
    script_.Do([this](QWidget&) { std::filesystem::remove_all(folder_.Path("p")); });
    for (const char* screen : screens) {
      script_.Await(screen).Click("Ok");
    }
    script_.Answer().Click("Close").Await("MainMenu");
    ExpectText(script_, "Project", Text("p"));
    Go(script_);
    test::ExpectSame(WithoutCircumstances(ContentsOf("p")), first);
  }

  /// Opens a record and leaves the flow that it opens.
  void OpenAndLeave(const std::string& record, const std::string& first_screen) {
    OpenRecord(record);
    script_.Answer().Await(first_screen).Press(Qt::Key_Escape);
  }
};

TEST_F(RecordsTest, AnAllocation) {
  ExpectRepeated(std::string(kAllocation) + "--tolerance 2 --error uniform=0.03 --use A,C,D",
                 {"NonSexedAllocationFiles", "ErrorModel", "ChoiceOfLoci"});
  ExpectTold(script_, {"Calculations completed!"});
}

TEST_F(RecordsTest, ASexedSequence) {
  folder_.Write("data/mothers.txt", "O1 females3\n");
  folder_.Write("data/groups.txt", "O2 1\n");
  ExpectRepeated(
      "kaldo allocate --project p --loci data/loci.txt --offspring data/offspring.txt --males "
      "data/males.txt --females data/females.txt --known-mother data/mothers.txt "
      "--offspring-groups "
      "data/groups.txt --tolerance 0 --error "
      "nonuniform=0.03125,0,0.96875,0,0 --use B,C,D --sequence 4,3,2,1",
      {"SexedAllocationFiles", "ErrorModel", "ChoiceOfLoci", "CumulativeSequence"});
}

TEST_F(RecordsTest, WhatIsKnownOfOffspringCountsWhileItsBoxIsTicked) {
  folder_.Write("data/mothers.txt", "O1 nobody\n");
  test::OpenFlow(script_, "ALLOCATIONNON-SEXED");
  test::TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  script_.Click("SomethingKnown").Type("KnownMothersFile", Text("data/mothers.txt"));
  script_.Click("Ok").Answer().Click("SomethingKnown").Click("Ok").Await("ErrorModel");
  script_.Press(Qt::Key_Escape);
  Go(script_);
  ExpectTold(script_, {"There is no individual of that name!"});
}

TEST_F(RecordsTest, ASimulationOfMinimalSubsets) {
  ExpectRepeated(
      "kaldo simulate --project p --loci data/loci.txt --pseudo-collected-sample data/sample.txt "
      "--pseudo-collected 5 --uncollected-sample data/parents.txt --uncollected 2.5 --iterations 4 "
      "--offspring-per-iteration 20 --tolerance 2 --error uniform=0.02 --allocate-with "
      "uniform=0.01 "
      "--undefined 0.1 --strategy minimal --criterion 0.3 "
      "--start-with 2 --use A,B,D --print-iterations --keep matrices --seed 9",
      {"NonSexedSimulationStart", "Parents", "PseudoOffspring", "Tolerance", "Strategy", "Output"});
}

TEST_F(RecordsTest, ASexedSimulationOfASequence) {
  // Without a seed: the record tells the one that was taken from the clock.
  ExpectRepeated(
      "kaldo simulate --sexed --project p --loci data/loci.txt --collected-males data/males.txt "
      "--uncollected-male-sample data/sample.txt --uncollected-males 3 --estimated-collected-males "
      "4.5 --estimated-uncollected-males 1.5 --collected-females data/females.txt "
      "--uncollected-female-sample data/parents.txt --uncollected-females 2 "
      "--estimated-collected-females 5 --estimated-uncollected-females 2.25 --iterations 3 "
      "--offspring-per-iteration 30 --tolerance 0 --error uniform=0.04 --strategy cumulative "
      "--sequence 2,1,4,3 --print-subset-statistics --keep parents,offspring",
      {"SexedSimulationStart", "Parents", "PseudoOffspring", "Tolerance", "Strategy",
       "CumulativeSequence", "Output"});
}

TEST_F(RecordsTest, ARecordCanBeDroppedOnTheMenu) {
  RunCommand(std::string(kAllocation) + "--tolerance 3");
  script_.Drop("MainMenu", PathText(folder_.Path("p/Run record.toml")));
  script_.Await("NonSexedAllocationFiles");
  ExpectText(script_, "Tolerance", Text("3"));
  script_.Press(Qt::Key_Escape);
  Go(script_);
}

TEST_F(RecordsTest, InputFilesThatChangedOrWentAreTold) {
  RunCommand(kAllocation);
  script_.Do([this](QWidget&) { folder_.Write("data/offspring.txt", "O1 000000\n"); });
  OpenAndLeave("p/Run record.toml", "NonSexedAllocationFiles");
  script_.Do([this](QWidget&) { std::filesystem::remove(folder_.Path("data/parents.txt")); });
  OpenRecord("p/Run record.toml");
  script_.Answer().Await("NonSexedAllocationFiles");
  ExpectText(script_, "ParentsFileHint", Text("cannot be read: No such file or directory"));
  script_.Click("Ok").Answer().Press(Qt::Key_Escape);
  Go(script_);
  ExpectTold(script_, {kMayDiffer, kMayDiffer, "Cannot open file \"data/parents.txt\"!"});
  EXPECT_THAT(Bytes(script_.Details().value(0)),
              testing::HasSubstr("(\"data/offspring.txt\") has changed"));
  EXPECT_THAT(Bytes(script_.Details().value(1)),
              testing::AllOf(testing::HasSubstr("(\"data/parents.txt\") cannot be read"),
                             testing::HasSubstr("(\"data/offspring.txt\") has changed")));
}

TEST_F(RecordsTest, TheFolderOfTheRecordedRunIsOffered) {
  RunCommand(kAllocation);
  const QString other = PathText(folder_.Path("other"));
  std::filesystem::create_directory(folder_.Path("other"));
  script_.Do([other](QWidget&) { QDir::setCurrent(other); });
  OpenRecord("p/Run record.toml");
  script_.Answer("No").Await("NonSexedAllocationFiles");
  ExpectText(script_, "LociFile", PathText(folder_.Path("data/loci.txt")));
  script_.Press(Qt::Key_Escape);
  ExpectText(script_, "ResultsFolder", other + Text("/p"));
  OpenRecord("p/Run record.toml");
  script_.Answer("Yes").Await("NonSexedAllocationFiles").Press(Qt::Key_Escape).Await("MainMenu");
  ExpectText(script_, "ResultsFolder", PathText(folder_.Path("p")));
  Go(script_);
  EXPECT_EQ(script_.Messages().size(), 2) << "nothing has changed";
}

TEST_F(RecordsTest, AStudyThatWasMovedIsFound) {
  std::filesystem::create_directories(folder_.Path("here/study"));
  std::filesystem::rename(folder_.Path("data"), folder_.Path("here/study/data"));
  test::RunCommandLine(folder_.Path("here/study"), Text(kAllocation));
  std::filesystem::rename(folder_.Path("here"), folder_.Path("there"));
  OpenRecord("there/study/p/Run record.toml");
  script_.Answer("Yes").Await("NonSexedAllocationFiles");
  ExpectText(script_, "LociFile", Text("data/loci.txt"));
  script_.Press(Qt::Key_Escape).Await("MainMenu");
  ExpectText(script_, "ResultsFolder", PathText(folder_.Path("there/study/p")));
  OpenResults("there/study/p");
  script_.Await("Tabs").Click("CopyCommand").Click("Close").Await("MainMenu");
  Go(script_);
  EXPECT_EQ(script_.Messages().size(), 1);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
      Text("cd " + folder_.Path("there/study") + " && kaldo allocate")));
}

TEST_F(RecordsTest, ResultsOpenAgainWithoutARun) {
  RunCommand(kAllocation);
  const Contents before = ContentsOf("p");
  const auto menu_in_front = [this] {
    menu_.activateWindow();
    return menu_.isActiveWindow();
  };
  OpenResults("p");
  script_.Await("Note").Press(Qt::Key_O, Qt::AltModifier).Type("OffspringFind", Text("O2"));
  ExpectText(script_, "OffspringCount", Text("1 of 2 offspring"));
  script_.Press(Qt::Key_Escape);
  ExpectText(script_, "OffspringCount", Text("2 of 2 offspring"));
  script_.Press(Qt::Key_Escape).Await("Note");
  // They go with the menu only when the user says so, and are found again by their folder.
  script_.Do([this](QWidget&) { QTimer::singleShot(0, &menu_, [this] { menu_.close(); }); });
  script_.Answer("No").Until(menu_in_front, "the menu").Click("OpenResults").TypeHere(Text("1"));
  script_.Await("Note").Click("Close").Until(menu_in_front, "the menu");
  script_.Click("OpenResults").TypeHere(Text("f")).Click("OpenResults");
  script_.Do([](QWidget& menu) { EXPECT_EQ(menu.actions().size(), 1) << "none is remembered"; });
  script_.Press(Qt::Key_Escape).Await("MainMenu");
  Go(script_);
  test::ExpectSame(ContentsOf("p"), before);
}

TEST_F(RecordsTest, ResultsOpenedAgainAreAsSureAndExportedAsThoseOfTheRun) {
  RunCommand(kAllocation);
  const std::string confidence = test::ReadFile(folder_.Path("p/Confidence.tsv"));
  const auto menu_in_front = [this] {
    menu_.activateWindow();
    return menu_.isActiveWindow();
  };
  std::string note;
  OpenResults("p");
  script_.Await("Note").Press(Qt::Key_O, Qt::AltModifier).Await("OffspringLegend");
  script_.Click("ExportRun").Await("Exports").Click("ExportForm_tsv").Click("ExportWrite");
  script_.Answer().Await("Note").Click("Close").Until(menu_in_front, "the menu");
  // A report of certainty that was edited is told; all else is there.
  script_.Do([&](QWidget&) { folder_.Write("p/Confidence.tsv", confidence + " "); });
  OpenResults("p");
  script_.Await("Note").Do([&](QWidget& window) {
    note = Bytes(window.window()->findChild<QLabel*>(Text("Note"))->text());
    EXPECT_EQ(window.window()->findChild<QWidget*>(Text("OffspringLegend")), nullptr);
    const auto* const summary = window.window()->findChild<QTextEdit*>(Text("SummaryText"));
    EXPECT_THAT(Bytes(summary->toPlainText()),
                testing::HasSubstr("was computed, but its report cannot be used."));
    folder_.Write("p/Confidence.tsv", confidence);
  });
  script_.Click("Close").Until(menu_in_front, "the menu");
  Go(script_);
  EXPECT_THAT(note, testing::HasSubstr("\"Confidence.tsv\" has other contents"));
  ExpectAsCommandLine("p", CommandHere(std::string(kAllocation) + "&& kaldo export p --as tsv"));
}

TEST_F(RecordsTest, ResultsThatAreNoLongerThoseOfTheRunAreNotShown) {
  RunCommand(kAllocation);
  const std::string results = test::ReadFile(folder_.Path("p/Allocation results.xls"));
  script_.Do([=, this](QWidget&) { folder_.Write("p/Allocation results.xls", results + " "); });
  OpenResults("p");
  script_.Answer().Do([=, this](QWidget&) {
    folder_.Write("p/Allocation results.xls", results);
    folder_.Write("data/offspring.txt", "O1 100104 204208 150152 124128\n");
  });
  OpenResults("p");
  script_.Answer().Await("MainMenu");
  OpenResults("data");
  script_.Answer().Await("MainMenu");
  Go(script_);
  ExpectTold(script_, {"This run record cannot be used!",
                       "An input file has changed since the recorded run!",
                       "Cannot open file \"" + folder_.Path("data/Run record.toml") + "\"!"});
  EXPECT_THAT(Bytes(script_.Details().value(0)),
              testing::HasSubstr("\"Allocation results.xls\" has other contents"));
}

TEST_F(RecordsTest, OtherFilesAreRefused) {
  RunCommand(kAllocation);
  std::string record = test::ReadFile(folder_.Path("p/Run record.toml"));
  const auto change = [&record](const std::string& from, const std::string& to) {
    const std::size_t place = record.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return std::string(record).replace(place, from.size(), to);
  };
  folder_.Write("foreign.toml", "[package]\nname = \"another\"\n");
  folder_.Write("flow.toml", change("allocation, non-sexed", "a stroll"));
  folder_.Write("tolerance.toml", change("tolerance = 1", "tolerance = \"one\""));
  for (const char* file : {"data/loci.txt", "foreign.toml", "flow.toml", "tolerance.toml"}) {
    OpenRecord(file);
    script_.Answer();
  }
  script_.Await("MainMenu");
  ExpectText(script_, "Project", QString());
  Go(script_);
  ExpectTold(script_, {"This is not a run record!", "This is not a run record!",
                       "This run record cannot be used!", "This run record cannot be used!"});
  EXPECT_THAT(Bytes(script_.Details().value(2)), testing::HasSubstr("a stroll"));
  EXPECT_THAT(Bytes(script_.Details().value(3)), testing::HasSubstr("tolerance"));
}

}  // namespace
}  // namespace kaldo

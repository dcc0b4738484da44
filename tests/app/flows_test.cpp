// SPDX-License-Identifier: GPL-3.0-or-later
// Whole flows, clicked through from the introduction to the results. What the windows write must be
// what the command line writes, to the byte; the command is the one that they offer to copy.
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QTextBrowser>
#include <algorithm>

#include <fmt/format.h>

#include "app/base/screen_table.h"
#include "app/base/text.h"
#include "app/desktop.h"
#include "app/support/desktop_test.h"
#include "base/report_lines.h"

namespace kaldo {
namespace {

using test::OpenFlow;
using test::RunToTheEnd;
using test::Told;
using test::TypeAllocationFiles;
using test::WalkToLoci;

using Sentences = std::vector<std::string>;

const std::string kCompleted = "Calculations completed!";
const std::string kSimulated = "calculations completed!";
const std::string kStepping =
    "Some allelic distances not in step with the smallest difference. Please read the stepping "
    "error file !";

class FlowsTest : public test::WorkplaceTest {
 protected:
  FlowsTest() { WriteExamples(); }

  /// From the introduction to the main menu, through the steps, to the end of the program.
  void RunProgram(const std::function<void(Script&)>& steps, std::string_view start = "Ok") {
    script_.Await("Introduction").Click(start);
    steps(script_);
    script_.Await("MainMenu").Do([](QWidget& menu) { menu.close(); });
    EXPECT_TRUE(script_.Run([] { EXPECT_EQ(RunDesktop({}), 0); }));
  }

  /// Types the parents of a simulation. The adults of the ponds are divided by separators, which no
  /// simulation takes: their sample stands for them.
  static void TypeExample(Script& script, const std::string& sex, bool parental,
                          const std::vector<const char*>& numbers) {
    const std::string file = sex.empty()        ? "data/non-sexed/parents.txt"
                             : sex == "Females" ? "data/sexed/sample-females.txt"
                                                : "data/sexed/sample-males.txt";
    test::TypeParents(script, sex, parental, {file, file}, numbers);
  }
};

TEST_F(FlowsTest, TheIntroductionLeadsToAnExampleInFourClicks) {
  RunProgram(
      [this](Script& script) {
        script.Await("NonSexedAllocationFiles").Click("Ok").Await("ErrorModel").Click("Ok");
        script.Await("ChoiceOfLoci");
        RunToTheEnd(script, command_);
        script.Do([](QWidget&) { EXPECT_EQ(test::TextIn("Project"), Text("kaldo-example/lake")); });
      },
      "TryExample");
  EXPECT_EQ(Told(script_), Sentences{kCompleted});
  ExpectAsCommandLine("kaldo-example/lake", command_);
}

/// The text of a summary in any open window of results; empty where there is none.
QTextBrowser* SummaryWith(const QString& text) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    auto* const summary = window->findChild<QTextBrowser*>(Text("SummaryText"));
    if (summary != nullptr && summary->toPlainText().contains(text)) {
      return summary;
    }
  }
  return nullptr;
}

TEST_F(FlowsTest, ResultsLeadToASimulationLikeTheirRunAndTakeItsFigures) {
  const QString figures = Text("A simulation like this run (5 x 50 pseudo-offspring)");
  RunProgram(
      [&](Script& script) {
        script.Await("NonSexedAllocationFiles").Click("Ok").Await("ErrorModel");
        script.Click("Uniform").Type("Epsilon", Text("0.02")).Click("Ok");
        script.Await("ChoiceOfLoci").Click("Ok").Answer().Click("SummaryTrial");
        script.Await("NonSexedSimulationStart").Type("Iterations", Text("5"));
        for (const char* screen :
             {"Parents", "PseudoOffspring", "Tolerance", "Strategy", "ChoiceOfLoci", "Output"}) {
          script.Click("Ok").Await(screen);
        }
        script.Click("Ok").Answer().Await("SimulationResults").Click("CopyCommand");
        script.Do([this](QWidget&) { command_ = QGuiApplication::clipboard()->text(); });
        script.Click("Close").Until([&] { return SummaryWith(figures) != nullptr; },
                                    "see the figures");
        script.Do([&](QWidget&) { SummaryWith(figures)->window()->close(); });
        script.Await("MainMenu").Do([](QWidget&) {
          EXPECT_EQ(test::TextIn("Project"), Text("kaldo-example/lake"));
        });
      },
      "TryExample");
  EXPECT_EQ(Told(script_), (Sentences{kCompleted, kSimulated}));
  for (const char* part : {"--allocate-with run", "--error uniform=0.02", "--undefined-like"}) {
    EXPECT_TRUE(command_.contains(Text(part))) << part << " in " << Bytes(command_);
  }
  ExpectAsCommandLine("kaldo-example/lake-simulation", command_);
}

TEST_F(FlowsTest, AllocatesTypedFiles) {
  RunProgram([this](Script& script) {
    OpenFlow(script, "ALLOCATIONNON-SEXED", Text("Etang d'été"));
    TypeAllocationFiles(script, Flow::kNonSexed, Text("data/non-sexed"));
    script.Type("Tolerance", Text("2"));
    script.Do([](QWidget&) { EXPECT_FALSE(QDir(Text("Etang d'été")).exists()); });
    script.Click("Ok").Await("ErrorModel");
    script.Do([](QWidget&) { EXPECT_TRUE(QDir(Text("Etang d'été")).exists()); });
    script.Click("Uniform").Type("Epsilon", Text("0.05")).Click("Ok").Await("ChoiceOfLoci");
    script.ClickNumber(kFirstLocusBox).ClickNumber(kFirstLocusBox + 8);
    RunToTheEnd(script, command_);
  });
  EXPECT_EQ(Told(script_), Sentences{kCompleted});
  EXPECT_TRUE(command_.contains(Text("--error uniform=0.05")));
  EXPECT_TRUE(command_.contains(Text("--use Mir08Di,")));
  ExpectAsCommandLine("Etang d'été", command_);
}

/// The positions of the loci by the column exclusion_pair of the table.
std::string SequenceByLociTable(const std::string& path) {
  const std::string text = test::ReadFile(path);
  ReportLines lines(text);
  const auto heads = CellsOf(lines.Next());
  const auto column = std::find(heads.begin(), heads.end(), "exclusion_pair") - heads.begin();
  std::vector<double> shares;
  for (auto cells = CellsOf(lines.Next()); cells[0] != "ALL"; cells = CellsOf(lines.Next())) {
    shares.push_back(std::stod(std::string(cells[static_cast<std::size_t>(column)])));
  }
  std::vector<std::ptrdiff_t> positions;
  for (const double share : shares) {
    positions.push_back(1 + std::count_if(shares.begin(), shares.end(),
                                          [share](double other) { return other > share; }));
  }
  EXPECT_NE(positions, (std::vector<std::ptrdiff_t>{1, 2, 3, 4, 5, 6, 7, 8}));
  return fmt::format("{}", fmt::join(positions, ","));
}

TEST_F(FlowsTest, AllocatesASexedSequence) {
  RunProgram([this](Script& script) {
    OpenFlow(script, "ALLOCATIONSEXED");
    TypeAllocationFiles(script, Flow::kSexed, Text("data/sexed"));
    script.Click("Ok").Await("ErrorModel").Click("NonUniform").Click("Ok").Await("ChoiceOfLoci");
    script.ClickNumber(kCumulativeSequenceBox).Click("Ok").Await("CumulativeSequence");
    for (int locus = 1; locus <= 8; ++locus) {
      script.Type("Index" + std::to_string(locus), Text(std::to_string(9 - locus)));
    }
    script.Click("OrderByInformation");
    RunToTheEnd(script, command_);
  });
  EXPECT_EQ(Told(script_), Sentences{kCompleted});
  EXPECT_TRUE(command_.contains(Text("--sequence " + SequenceByLociTable("p/Loci.tsv"))));
  EXPECT_EQ(ContentsOf("p").count("Sequence results.xls"), 1U);
  ExpectAsCommandLine("p", command_);
}

TEST_F(FlowsTest, TheMenuOffersEveryExample) {
  std::array<QString, 3> commands;
  RunProgram([&commands](Script& script) {
    script.Click("Examples").Press(Qt::Key_Down).Press(Qt::Key_Down).Press(Qt::Key_Return);
    script.Await("SexedAllocationFiles").Click("Ok").Await("ErrorModel").Click("Ok");
    RunToTheEnd(script, commands[0]);
    for (const bool sexed : {false, true}) {
      script.Click("Examples");
      for (int down = 0; down < (sexed ? 4 : 3); ++down) {
        script.Press(Qt::Key_Down);
      }
      script.Press(Qt::Key_Return).Type("Iterations", Text("5"));
      for (const char* screen : {"Parents", "PseudoOffspring", "Tolerance", "Strategy"}) {
        script.Click("Ok").Await(screen);
      }
      script.Click("ChoiceOfLociStrategy").Click("Ok").Await("ChoiceOfLoci");
      script.ClickNumber(kAllLociBox).Click("Ok").Await("Output");
      RunToTheEnd(script, commands.at(sexed ? 2 : 1));
    }
  });
  EXPECT_EQ(Told(script_), (Sentences{kCompleted, kSimulated, kCompleted}));
  ExpectAsCommandLine("kaldo-example/ponds", commands[0]);
  ExpectAsCommandLine("kaldo-example/lake-simulation", commands[1]);
  ExpectAsCommandLine("kaldo-example/ponds-simulation", commands[2]);
}

TEST_F(FlowsTest, SimulatesAllSubsetsWithoutSexes) {
  RunProgram([this](Script& script) {
    OpenFlow(script, "SIMULATIONSNON-SEXED");
    script.Type("LociFile", Text("data/non-sexed/loci.txt")).Type("Iterations", Text("3"));
    script.Do([](QWidget&) { EXPECT_FALSE(QFile::exists(Text("SAUVLOCUSTULM.txt"))); });
    script.Click("PreParental").Click("Ok").Await("Parents");
    script.Do([](QWidget&) {
      EXPECT_TRUE(QDir(Text("p")).exists());
      EXPECT_TRUE(test::ReadFile("SAUVLOCUSTULM.txt").starts_with("Mir03Di Mir08Di Mir14Di "));
    });
    TypeExample(script, "", false, {"5.5", "20"});
    script.Click("Ok").Await("PseudoOffspring").Type("OffspringPerIteration", Text("30"));
    script.Click("Uniform").Click("Ok").Await("Tolerance");
    script.Do([](QWidget&) { EXPECT_FALSE(VisibleWidget("Tolerance")->isEnabled()); });
    script.Click("AllocateWithRun").Type("Tolerance", Text("0"));
    script.Click("Ok").Await("Strategy").Click("AllSubsets").Type("StartWith", Text("8"));
    script.Click("Ok").Await("Output").Click("PrintIterations").Click("KeepMatrices");
    script.Type("Seed", Text("7"));
    RunToTheEnd(script, command_);
  });
  EXPECT_EQ(Told(script_), Sentences{kSimulated});
  EXPECT_TRUE(command_.contains(Text("--strategy all --start-with 8")));
  EXPECT_TRUE(command_.contains(Text("--allocate-with run")));
  ExpectAsCommandLine("p", command_);
}

TEST_F(FlowsTest, SimulatesMinimalSubsetsAndASequenceWithSexes) {
  QString sequence;
  RunProgram([&](Script& script) {
    OpenFlow(script, "SIMULATIONSSEXED", Text("minimal"));
    script.Type("LociFile", Text("data/sexed/loci.txt")).Type("Iterations", Text("4"));
    script.Click("Ok").Await("Parents");
    TypeExample(script, "Males", true, {"3", "17", "4.5"});
    TypeExample(script, "Females", true, {"4", "17", "2"});
    script.Click("Ok").Await("PseudoOffspring").Type("OffspringPerIteration", Text("40"));
    script.Click("NonUniform").Click("Ok").Await("Tolerance").Click("Ok").Await("Strategy");
    script.Click("MinimalSubsets").Type("Criterion", Text("0.5")).Type("StartWith", Text("7"));
    script.Click("ChooseLoci").Await("ChoiceOfLoci").ClickNumber(kFirstLocusBox + 2);
    script.Click("Ok").Await("Output").Click("KeepParents").Click("KeepOffspring");
    script.Type("Seed", Text("4294967295"));
    RunToTheEnd(script, command_);

    OpenFlow(script, "SIMULATIONSSEXED", Text("sequence"));
    script.Click("PreParental").Click("Ok").Await("Parents");
    TypeExample(script, "Males", false, {"3", "10", "5", "9"});
    TypeExample(script, "Females", false, {"2", "10", "5", "8"});
    for (const char* screen : {"PseudoOffspring", "Tolerance", "Strategy"}) {
      script.Click("Ok").Await(screen);
    }
    script.Click("CumulativeStrategy").Click("Ok").Await("CumulativeSequence");
    script.Type("Index1", Text("8")).Type("Index8", Text("1")).Click("Ok").Await("Output");
    script.Click("PrintSubsets");
    RunToTheEnd(script, sequence);
  });
  EXPECT_EQ(Told(script_), (Sentences{kCompleted, kCompleted}));
  EXPECT_TRUE(command_.contains(Text("--strategy minimal --criterion 0.5 --start-with 7")));
  EXPECT_TRUE(command_.contains(Text("--use ")));
  ExpectAsCommandLine("minimal", command_);
  EXPECT_TRUE(sequence.contains(Text("--sequence 8,2,3,4,5,6,7,1")));
  EXPECT_TRUE(sequence.contains(Text("--use "))) << "the loci chosen before stay chosen";
  ExpectAsCommandLine("sequence", sequence);
}

TEST_F(FlowsTest, AllelesOutOfStepAreTold) {
  // 151 lies a single base beside 150 and 152.
  WriteStudy();
  folder_.Write("data/males.txt",
                "M1 100102 200204 150151 120124\nM2 104104 208208 152154 128128\n");
  RunProgram([this](Script& script) {
    WalkToLoci(script, Flow::kSexed);
    RunToTheEnd(script, command_);
    OpenFlow(script, "SIMULATIONSNON-SEXED", Text("s"));
    script.Type("LociFile", Text("data/loci.txt")).Type("Iterations", Text("2")).Click("Ok");
    script.Type("CollectedFile", Text("data/males.txt"));
    script.Type("UncollectedSample", Text("data/sample.txt")).Type("Uncollected", Text("2"));
    script.Click("Ok").Click("NoError").Click("Ok").Await("Tolerance").Click("Ok");
    script.Click("ChoiceOfLociStrategy").Click("Ok").Await("ChoiceOfLoci").Click("Ok");
    script.Await("Output").Type("Seed", Text("1"));
    RunToTheEnd(script, command_, 2);
  });
  EXPECT_EQ(Told(script_), (Sentences{kStepping, kStepping, kSimulated}));
}

}  // namespace
}  // namespace kaldo

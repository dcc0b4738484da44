// SPDX-License-Identifier: GPL-3.0-or-later
// Where the program is used changes neither what it reads nor what it writes: another working
// folder, another country.
#include <QDir>
#include <QLocale>
#include <QTableView>
#include <filesystem>
#include <locale>

#include "allocation/allocation_run.h"
#include "app/base/text.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

using test::ExpectText;
using test::ExpectTold;
using test::OpenFlow;
using test::PickInDialog;
using test::TypeAllocationFiles;

/// Numbers as much of Europe writes them: "1.000,5".
class CommaNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

/// Makes the numbers of the country those of the program while it lives.
class AbroadWithCommas {
 public:
  AbroadWithCommas() : streams_(std::locale(std::locale::classic(), new CommaNumbers)) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  }
  AbroadWithCommas(const AbroadWithCommas&) = delete;
  AbroadWithCommas& operator=(const AbroadWithCommas&) = delete;
  AbroadWithCommas(AbroadWithCommas&&) = delete;
  AbroadWithCommas& operator=(AbroadWithCommas&&) = delete;
  ~AbroadWithCommas() {
    std::locale::global(streams_before_);
    QLocale::setDefault(qt_before_);
  }

 private:
  QLocale qt_before_;
  std::locale streams_;
  std::locale streams_before_ = std::locale::global(streams_);
};

QString CellsOf(const QTableView& table) {
  QString cells;
  for (int row = 0; row < table.model()->rowCount(); ++row) {
    for (int column = 0; column < table.model()->columnCount(); ++column) {
      cells += table.model()->index(row, column).data().toString() + QLatin1Char(' ');
    }
  }
  return cells;
}

class PlacesTest : public test::MenuTest {
 protected:
  PlacesTest() { WriteStudy(); }
};

TEST_F(PlacesTest, ResultsGoToTheWorkingFolderOfTheMenu) {
  const std::string other = folder_.Path("field work/2019 été");
  std::filesystem::create_directories(other);
  script_.Type("Project", Text("p"));
  ExpectText(script_, "ResultsFolder", PathText(folder_.Path("p")));
  script_.Click("ChooseFolder").Await("fileNameEdit").Press(Qt::Key_Escape).Await("MainMenu");
  ExpectText(script_, "ResultsFolder", PathText(folder_.Path("p")));
  script_.Click("ChooseFolder");
  PickInDialog(script_, PathText(other));
  script_.Await("MainMenu");
  ExpectText(script_, "ResultsFolder", PathText(other + "/p"));
  script_.Type("Project", Text("q"));
  ExpectText(script_, "ResultsFolder", PathText(other + "/q"));
  script_.Do([&other](QWidget&) {
    EXPECT_TRUE(VisibleWidget("ResultsFolder")->toolTip().startsWith(PathText(other + "/q\n")));
  });
  script_.Click("ALLOCATIONNON-SEXED");
  TypeAllocationFiles(script_, Flow::kNonSexed, PathText(folder_.Path("data")));
  script_.Click("Ok").Click("NoError").Click("Ok").Await("ChoiceOfLoci");
  ExpectText(script_, "Destination", Text("Results go to ") + PathText(other + "/q"));
  test::RunToTheEnd(script_, command_);
  // Names of files are taken from there too.
  script_.Do([&](QWidget&) { std::filesystem::copy(folder_.Path("data"), other + "/data"); });
  OpenFlow(script_, "ALLOCATIONNON-SEXED", Text("q"));
  TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  script_.Click("Ok").Await("ErrorModel").Press(Qt::Key_Escape);
  Go(script_);
  EXPECT_EQ(ContentsOf("field work/2019 été/q").count("Allocation results.xls"), 1U);
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("q")));
  ExpectTold(script_, {"Calculations completed!"});
}

TEST_F(PlacesTest, NumbersHaveADecimalPointEverywhere) {
  const AbroadWithCommas abroad;
  QString simulation;
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  script_.Click("Ok").Await("ErrorModel").Click("Uniform");
  script_.Type("Epsilon", Text("0,05")).Click("Ok").Answer().Type("Epsilon", Text("0.05"));
  script_.Type("Plus1", Text("0.5"));
  ExpectText(script_, "ProbabilitySum", Text("The five probabilities sum to 1.492, not to 1."));
  script_.Click("Ok").Await("ChoiceOfLoci").Click("Ok").Answer().Await("Tabs");
  script_.Do([](QWidget& results) {
    const QString cells = CellsOf(*results.findChild<QTableView*>(Text("OffspringTable")));
    EXPECT_TRUE(cells.contains(QLatin1Char('.')) && !cells.contains(QLatin1Char(',')))
        << Bytes(cells);
  });
  script_.Click("Close");
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  script_.Click("Ok").Click("Ok").Await("ChoiceOfLoci");
  test::RunToTheEnd(script_, command_);

  OpenFlow(script_, "SIMULATIONSNON-SEXED", Text("s"));
  script_.Type("LociFile", Text("data/loci.txt")).Type("Iterations", Text("3")).Click("Ok");
  script_.Type("CollectedFile", Text("data/parents.txt"));
  script_.Type("UncollectedSample", Text("data/sample.txt")).Type("Uncollected", Text("2,5"));
  script_.Click("Ok").Answer().Type("Uncollected", Text("2.5")).Click("Ok");
  script_.Await("PseudoOffspring").Type("OffspringPerIteration", Text("1200")).Click("NonUniform");
  script_.Click("Ok").Await("Tolerance").Click("Ok").Await("Strategy").Click("MinimalSubsets");
  script_.Type("Criterion", Text("0.25")).Click("Ok").Await("Output").Click("PrintIterations");
  script_.Type("Seed", Text("123456"));
  test::RunToTheEnd(script_, simulation);
  Go(script_);
  ExpectTold(script_, {"Enter numbers with a decimal point!", "Calculations completed!",
                       "Calculations completed!", "That number of parents is not possible!",
                       "calculations completed!"});
  EXPECT_TRUE(command_.contains(Text("uniform=0.05"))) << Bytes(command_);
  EXPECT_TRUE(simulation.contains(Text("--criterion 0.25"))) << Bytes(simulation);
  ExpectAsCommandLine("p", command_);
  ExpectAsCommandLine("s", simulation);
}

TEST_F(PlacesTest, ResultsOfAnotherFlowGoOnlyWhenTheUserSaysSo) {
  folder_.Write("p/Summary.xls", "of a simulation\n");
  folder_.Write("p/Run record.toml",
                "program = \"KALDO\"\ndate = 2026-03-01T14:02:11Z\nflow = \"simulation, "
                "sexed\"\n[settings]\n");
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  script_.Click("Ok").Await("ErrorModel").Click("NonUniform").Click("Ok").Await("ChoiceOfLoci");
  script_.Click("Ok").Answer("No").Await("ChoiceOfLoci").Do([this](QWidget&) {
    EXPECT_EQ(ContentsOf("p").size(), 2U);
  });
  script_.Click("Ok").Answer("Yes").Answer().Await("Tabs").Click("Close").Await("MainMenu");
  Go(script_);
  const std::string_view question =
      "\"p\" holds the results of another flow (simulation, sexed, of 2026-03-01T14:02:11Z). "
      "Replace them?";
  ExpectTold(script_, {question, question, "Calculations completed!"});
  EXPECT_EQ(ContentsOf("p").count("Summary.xls"), 0U);
}

TEST_F(PlacesTest, AnUnfinishedRunIsGoneOnWithWhenTheUserSaysSo) {
  AllocationSettings settings = FirstShownAllocation(Flow::kNonSexed);
  settings.project = std::string("p");
  settings.loci_file = "data/loci.txt";
  settings.parents_file = "data/parents.txt";
  settings.offspring_file = "data/offspring.txt";
  settings.error_model.kind = ErrorKind::kUniform;
  LocalThreads keeps_at_once({{}, {}, 0});
  test::StoppingObserver stops("Allocating", 1);
  EXPECT_THROW((void)RunAllocation(settings, stops, keeps_at_once), RunStopped);

  test::WalkToLoci(script_, Flow::kNonSexed);
  script_.Click("Ok").Answer("Yes").Answer().Await("ChoiceOfLoci");
  script_.Click("Ok").Answer("No").Answer().Await("Tabs").Click("Close").Await("MainMenu");
  Go(script_);
  const auto told = test::Told(script_);
  ASSERT_EQ(told.size(), 4U);
  EXPECT_EQ(told[0].find("\"p\" holds an unfinished run (allocation, non-sexed, of 20"), 0U)
      << told[0];
  EXPECT_EQ(told[1].find("The unfinished run cannot be resumed!"), 0U) << told[1];
  EXPECT_EQ(told[2], told[0]);
  EXPECT_EQ(ContentsOf("p").count(".kaldo-unfinished"), 0U);
}

}  // namespace
}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a simulation, compared with the reports of the same run.
#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <map>

#include "app/results/simulation_window.h"
#include "app/results/subset_model.h"
#include "app/support/results_test.h"
#include "base/number_text.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

using test::Column;
using test::Find;
using test::ModelIn;
using test::ModelRows;
using test::Rows;

namespace {

constexpr int Place(SubsetColumn column) { return static_cast<int>(column); }

using Shown = test::Shown<SimulationSettings, SimulationRun, SimulationWindow>;

/// The rows of correct frequencies in the summary report that begin with `word`, without it; "NA"
/// without its blanks.
Rows CorrectRows(const QString& word) {
  Rows found;
  for (const QStringList& row : test::ReportRows("p/Summary.xls")) {
    if (row[0] == word && row.size() > 5) {
      found.emplace_back();
      for (const QString& cell : row.mid(2)) {
        found.back() += cell.trimmed();
      }
    }
  }
  return found;
}

/// Every estimate lies 1.96 standard errors from the ends of its interval, but for what is beyond 0
/// and 1; those of the population stand in the summary.
void ExpectIntervals(const QAbstractItemModel& estimates, const QString& summary) {
  for (const QStringList& row : ModelRows(estimates)) {
    if (row[2] == Text("NA")) {
      continue;
    }
    const double value = row[2].toDouble();
    const double half = 1.96 * row[4].toDouble();
    EXPECT_NEAR(row[5].toDouble(), std::max(0.0, value - half), 1e-4);
    EXPECT_NEAR(row[6].toDouble(), std::min(1.0, value + half), 1e-4);
    const QString told = QString::number(value, 'f', 3) + Text(" (");
    EXPECT_TRUE(row[0] != Text("in the population") || summary.contains(told)) << Bytes(told);
  }
}

class ResultsSimulationTest : public test::WorkplaceTest {
 protected:
  ResultsSimulationTest() { WriteExamples(); }
};

TEST_F(ResultsSimulationTest, ShowsTheFiguresOfTheSummary) {
  for (const bool sexed : {false, true}) {
    Shown shown(sexed ? Flow::kSexed : Flow::kNonSexed);
    shown.settings.sets[0].uncollected = sexed ? 4 : 1;
    if (sexed) {
      shown.settings.sets[1].estimated_uncollected = 1;  // no offspring of two uncollected parents
    }
    shown.Run();
    const QAbstractItemModel& table = ModelIn(*shown.window, "SummaryTable");
    const QStringList means = CorrectRows(Text("Average")).at(0);
    EXPECT_EQ(Column(table, 2), means);
    EXPECT_EQ(Column(table, 3), CorrectRows(Text("SD")).at(0));
    EXPECT_EQ(means.count(Text("NA")), 1);
    EXPECT_EQ(Column(table, 0),
              sexed ? QStringList({Text("MC x FC"), Text("MC x FU"), Text("MU x FC"),
                                   Text("MU x FU"), Text("GLOBAL")})
                    : QStringList({Text("C X C"), Text("C X U"), Text("U X U"), Text("GLOBAL")}));
    QTest::mouseClick(&Find<QPushButton>(*shown.window, "SummaryMore"), Qt::LeftButton);
    const QString text = Find<QTextBrowser>(*shown.window, "SummaryText").toPlainText();
    EXPECT_TRUE(text.contains(sexed ? Text("as real offspring are") : Text("strict exclusion")));
    ExpectIntervals(ModelIn(*shown.window, "EstimatesTable"), text);
    EXPECT_TRUE(text.contains(Text("Summary.xls")) && text.contains(Text("Run record.toml")));
    EXPECT_EQ(text.contains(Text("pseudo-offspring.txt")), !sexed);
    EXPECT_TRUE(!text.contains(Text("last combination")));
  }
}

TEST_F(ResultsSimulationTest, ShowsTheSpreadOfEveryClass) {
  Shown shown(Flow::kNonSexed);
  shown.settings.sets[0].uncollected = 1;  // no pseudo-offspring of two uncollected parents
  shown.Run();
  auto& combo = Find<QComboBox>(*shown.window, "SpreadClass");
  const QAbstractItemModel& table = ModelIn(*shown.window, "SpreadTable");
  EXPECT_EQ(combo.currentText(), Text("GLOBAL"));
  const QStringList means = CorrectRows(Text("Average")).at(0);
  for (int k = 0; k < combo.count(); ++k) {
    combo.setCurrentIndex(k);
    QStringList expected;
    for (int iteration = 1; means[k] != Text("NA") && iteration <= 5; ++iteration) {
      expected += CorrectRows(QString::number(iteration)).at(0)[k];
    }
    EXPECT_EQ(Column(table, 1), expected);
    EXPECT_TRUE(Find<QLabel>(*shown.window, "SpreadFigures").text().contains(means[k]));
  }
}

TEST_F(ResultsSimulationTest, ShowsTheSequenceOfTheReport) {
  Shown shown(Flow::kSexed);
  shown.settings.strategy = LociStrategy::kCumulative;
  shown.settings.sequence = {8, 7, 6, 5, 4, 3, 2, 1};
  shown.Run();
  Rows last_section;
  for (const QStringList& row : test::ReportRows("p/Sequence results.xls")) {
    if (row[0] == Text("Combin #")) {
      last_section.clear();
    }
    last_section.push_back(row);
  }
  const Rows rows = ModelRows(ModelIn(*shown.window, "SequenceTable"));
  EXPECT_EQ(rows.size(), std::size_t{9});
  EXPECT_EQ(rows[1][1], Text("+ Mir30Tet"));
  for (std::size_t k = 1; k < rows.size(); ++k) {
    EXPECT_EQ(rows[k][0], QString::number(k));
    for (int column = 1; column <= 4; ++column) {  // any, to a male, to a female, to none
      const QString& shown_as = rows[k][column + 1];
      EXPECT_EQ(shown_as == Text("NA") ? Text("0") : shown_as, last_section.at(k)[column]);
    }
  }
  EXPECT_TRUE(Find<QTextBrowser>(*shown.window, "SummaryText")
                  .toPlainText()
                  .contains(Text("(results for the last combination of loci only)")));
}

TEST_F(ResultsSimulationTest, MarksTheBestSubsetOfEachSize) {
  Shown shown(Flow::kNonSexed);
  shown.settings.strategy = LociStrategy::kAll;
  shown.settings.iterations = 1;
  shown.settings.offspring_per_iteration = 12;  // few, so that subsets tie
  shown.settings.loci_in_use = {"Mir03Di", "Mir08Di", "Mir14Di", "Mir21Di", "Mir05Tet"};
  shown.Run();
  const auto& subsets = shown.run.result.subsets;
  EXPECT_EQ(subsets.size(), std::size_t{31});
  test::ExpectFitsSmallMonitor(*shown.window);
  const QAbstractItemModel& model = ModelIn(*shown.window, "SubsetsTable");
  const QStringList first_seen = Column(model, Place(SubsetColumn::kNames));
  Find<QTableView>(*shown.window, "SubsetsTable")
      .sortByColumn(Place(SubsetColumn::kPlace), Qt::AscendingOrder);
  for (std::size_t k = 0; k < subsets.size(); ++k) {
    bool is_best = true;  // better than all before, as good as all behind
    for (std::size_t other = 0; other < subsets.size(); ++other) {
      const double difference = subsets[other].probabilities.any - subsets[k].probabilities.any;
      const bool beaten = difference > 0 || (difference == 0 && other < k);
      is_best = is_best && !(subsets[other].loci.size() == subsets[k].loci.size() && beaten);
    }
    const auto cell = [&](SubsetColumn column) {
      return model.index(static_cast<int>(k), Place(column)).data().toString();
    };
    EXPECT_EQ(cell(SubsetColumn::kNames), Text(NamesOf(shown.run.input.loci, subsets[k].loci)));
    EXPECT_EQ(cell(SubsetColumn::kAnyCorrect), Text(FormatDouble(subsets[k].probabilities.any)));
    EXPECT_EQ(cell(SubsetColumn::kBest),
              is_best ? Text("★ best of %1").arg(subsets[k].loci.size()) : QString());
  }
  Find<QComboBox>(*shown.window, "SubsetsShow").setCurrentIndex(1);
  const QAbstractItemModel& best = ModelIn(*shown.window, "BestSubsetsTable");
  EXPECT_EQ(Column(model, Place(SubsetColumn::kNames)), Column(best, 2));
  EXPECT_EQ(first_seen.mid(0, best.rowCount()), Column(best, 2)) << "the best ones come first";
  EXPECT_EQ(Column(best, 0), QStringList({Text("1"), Text("2"), Text("3"), Text("4"), Text("5")}));

  // Equals stay in the order of the run, whichever way the others are sorted.
  Find<QComboBox>(*shown.window, "SubsetsShow").setCurrentIndex(0);
  auto& table = Find<QTableView>(*shown.window, "SubsetsTable");
  table.sortByColumn(Place(SubsetColumn::kAnyCorrect), Qt::DescendingOrder);
  const QStringList figures = Column(model, Place(SubsetColumn::kAnyCorrect));
  const QStringList places = Column(model, Place(SubsetColumn::kPlace));
  for (qsizetype k = 1; k < figures.size(); ++k) {
    EXPECT_TRUE(figures[k] != figures[k - 1] || places[k].toInt() > places[k - 1].toInt());
  }
}

TEST_F(ResultsSimulationTest, ExportsIntoAnotherFolderWhatTheCommandLineDoes) {
  Shown shown(Flow::kSexed);
  shown.Run();
  folder_.Write("out/Iterations.tsv", "mine\n");
  script_.Await("Tabs").Click("ExportRun").Await("Exports").Type("ExportFolder", Text("out"));
  script_.Click("ExportWrite").Answer("No").Await("Exports");
  script_.Do([](QWidget&) { EXPECT_EQ(test::ReadFile("out/Iterations.tsv"), "mine\n"); });
  script_.Click("ExportWrite").Answer("Yes").Answer().Await("Tabs");
  EXPECT_TRUE(script_.Run([&] { shown.window->activateWindow(); }));
  test::RunCommandLine(folder_.Path(""), Text("kaldo export p --as tsv --to expected"));
  test::ExpectSame(ContentsOf("out"), ContentsOf("expected"));
}

TEST_F(ResultsSimulationTest, SortsAndNarrowsSubsets) {
  Shown shown(Flow::kNonSexed);
  shown.settings.strategy = LociStrategy::kMinimal;
  shown.settings.criterion = 1;
  shown.settings.iterations = 1;
  shown.settings.loci_in_use = {"Mir03Di", "Mir08Di", "Mir14Di", "Mir05Tet"};
  shown.Run();
  auto& table = Find<QTableView>(*shown.window, "SubsetsTable");
  const QAbstractItemModelTester tester(table.model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  table.sortByColumn(Place(SubsetColumn::kAnyCorrect), Qt::DescendingOrder);
  std::vector<double> figures;
  for (const QString& cell : Column(*table.model(), Place(SubsetColumn::kAnyCorrect))) {
    figures.push_back(cell.toDouble());
  }
  EXPECT_EQ(figures.size(), std::size_t{15});
  EXPECT_TRUE(std::is_sorted(figures.rbegin(), figures.rend()));
  QTest::keyClicks(&Find<QLineEdit>(*shown.window, "SubsetsFind"), Text("tet mir03"));
  Find<QComboBox>(*shown.window, "SubsetsShow").setCurrentText(Text("3 loci"));
  QStringList names = Column(*table.model(), Place(SubsetColumn::kNames));
  names.sort();
  EXPECT_EQ(names,
            QStringList({Text("Mir03Di Mir08Di Mir05Tet"), Text("Mir03Di Mir14Di Mir05Tet")}));
  EXPECT_EQ(Find<QLabel>(*shown.window, "SubsetsCount").text(), Text("2 of 15 subsets"));
  EXPECT_TRUE(Find<QTextBrowser>(*shown.window, "SummaryText")
                  .toPlainText()
                  .contains(Text("No subset reached the criterion 1.")));
}

}  // namespace
}  // namespace kaldo

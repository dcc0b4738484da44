// SPDX-License-Identifier: GPL-3.0-or-later
// The window of an allocation, compared with the reports of the same run.
#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <map>
#include <set>

#include "allocation/allocation_command.h"
#include "app/base/command_text.h"
#include "app/results/allocation_window.h"
#include "app/results/comparison_model.h"
#include "app/results/copied_rows.h"
#include "app/results/offspring_model.h"
#include "app/results/result_table.h"
#include "app/support/results_test.h"
#include "method/allocation_decision.h"

namespace kaldo {

/// Takes what would be opened with another program of the desktop.
class UrlTaker : public QObject {
  Q_OBJECT

 public:
  Q_INVOKABLE void Take(const QUrl& taken) { url = taken; }

  QUrl url;
};

using test::Column;
using test::Find;
using test::ModelIn;
using test::ModelRows;
using test::Rows;

namespace {

constexpr int Place(OffspringColumn column) { return static_cast<int>(column); }
constexpr int Place(ComparisonColumn column) { return static_cast<int>(column); }

using Shown = test::Shown<AllocationSettings, AllocationRun, AllocationWindow>;

/// The lines of the offspring in the results report.
Rows OffspringLines() {
  Rows lines;
  bool inside = false;
  for (const QStringList& row : test::ReportRows("p/Allocation results.xls")) {
    inside = inside ? !(row.size() == 1 && !lines.empty()) : row[0] == Text("OFFSPRING");
    if (inside && row.size() == 5 && row[0] != Text("OFFSPRING")) {
      lines.push_back(row);
    }
  }
  return lines;
}

/// How many pairs "Max like pairs.txt" lists for each offspring; -1 for "more than 5".
std::vector<int> ListedPairs() {
  std::vector<int> pairs;
  const QString text = Text(test::ReadFile("p/Max like pairs.txt"));
  for (const QString& block : text.split(Text("Offspring \n"), Qt::SkipEmptyParts)) {
    const int listed = static_cast<int>(block.count(Text("Parents\n")));
    pairs.push_back(block.contains(Text("more than 5"))       ? -1
                    : block.contains(Text("Parents\nnone\n")) ? 0
                                                              : listed);
  }
  return pairs;
}

/// Copies of every allele size of each locus, straight from the words of the genotype files.
std::vector<std::map<int, int>> CopiesInFiles(const std::vector<std::string>& files, int loci) {
  std::vector<std::map<int, int>> copies(static_cast<std::size_t>(loci));
  for (const std::string& file : files) {
    for (const QByteArray& line : QByteArray::fromStdString(test::ReadFile(file)).split('\n')) {
      const QList<QByteArray> words = line.simplified().split(' ');
      for (int locus = 0; locus < loci && words.size() == loci + 1; ++locus) {
        const QByteArray& field = words[locus + 1];
        for (const QByteArray& allele : {field.left(3), field.mid(3)}) {
          copies[static_cast<std::size_t>(locus)][allele.toInt()] += allele == "000" ? 0 : 1;
        }
      }
    }
  }
  for (auto& of_locus : copies) {
    of_locus.erase(0);
  }
  return copies;
}

/// Compares the rows of one pair with what the core finds.
void CompareRows(const Shown& shown, int offspring, ParentPair pair,
                 const QAbstractItemModel& model, std::set<QString>& signs) {
  using C = ComparisonColumn;
  const AllocationInput& input = shown.run.input;
  const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(offspring)};
  const auto loci = CompareWithPair(input.table, slot, pair, shown.run.result.loci);
  ASSERT_EQ(model.rowCount(), 3);
  for (int row = 0; row < 3; ++row) {
    const auto cell = [&](C column) { return model.index(row, Place(column)).data().toString(); };
    const LocusComparison& locus = loci[static_cast<std::size_t>(row)];
    EXPECT_EQ(cell(C::kCondition), Text(Label(locus.condition)));
    EXPECT_EQ(cell(C::kUnit), QString::number(locus.unit_distance.Value()));
    EXPECT_EQ(cell(C::kParent2),
              Text("%1/%2").arg(locus.par2.allele1.Value()).arg(locus.par2.allele2.Value()));
    if (locus.offspring.IsMissing()) {
      signs.insert(cell(C::kOffset1));
      EXPECT_EQ(cell(C::kOffset1), Text("*"));
      EXPECT_EQ(cell(C::kOffspring), Text("undefined"));
      continue;
    }
    EXPECT_EQ(
        cell(C::kOffspring),
        Text("%1/%2").arg(locus.offspring.allele1.Value()).arg(locus.offspring.allele2.Value()));
    const bool unmeasured = locus.condition == LocusCondition::kOneToEach;
    const auto sign = [&](UnitDistances offset) {
      return unmeasured            ? Text("#")
             : offset.Value() == 0 ? Text("✓")
             : offset.Value() == 1 ? Text("≈")
                                   : Text("✗");
    };
    EXPECT_EQ(cell(C::kOffset1),
              sign(locus.offset_par1) + Text(" ") + QString::number(locus.offset_par1.Value()));
    EXPECT_EQ(cell(C::kOffset2),
              sign(locus.offset_par2) + Text(" ") + QString::number(locus.offset_par2.Value()));
    EXPECT_EQ(cell(C::kDistance1),
              unmeasured ? Text("#") : QString::number(locus.distance_par1.Value()));
    EXPECT_EQ(cell(C::kDistance2),
              unmeasured ? Text("#") : QString::number(locus.distance_par2.Value()));
    signs.insert(cell(C::kOffset1).left(1));
    signs.insert(cell(C::kOffset2).left(1));
  }
}

class ResultsAllocationTest : public test::WorkplaceTest {
 protected:
  ResultsAllocationTest() { WriteExamples(); }
};

TEST_F(ResultsAllocationTest, NamesTheParentsOfTheReport) {
  for (const auto& [flow, epsilon] : {std::pair{Flow::kNonSexed, -1.0},
                                      {Flow::kSexed, -1.0},
                                      {Flow::kNonSexed, 0.01},
                                      {Flow::kSexed, 0.01}}) {
    Shown shown(flow);
    if (epsilon >= 0) {
      shown.settings.error_model.kind = ErrorKind::kUniform;
      shown.settings.error_model.epsilon = epsilon;
    }
    shown.Run();
    const QAbstractItemModel& model = ModelIn(*shown.window, "OffspringTable");
    const Rows lines = OffspringLines();
    EXPECT_EQ(lines.size(), shown.run.result.outcomes.size());
    ASSERT_EQ(model.rowCount(), static_cast<int>(lines.size()));
    for (int row = 0; row < model.rowCount(); ++row) {
      const auto cell = [&](OffspringColumn column) {
        return model.index(row, Place(column)).data().toString();
      };
      using C = OffspringColumn;
      const QStringList of_table = {cell(C::kOffspring), cell(C::kParent1), cell(C::kParent2),
                                    Text("[%1,%2]").arg(cell(C::kRank1), cell(C::kRank2)),
                                    Text("[%1,%2]").arg(cell(C::kErrors1), cell(C::kErrors2))};
      EXPECT_EQ(of_table, lines[static_cast<std::size_t>(row)]);
    }
  }
}

TEST_F(ResultsAllocationTest, SortsNumbersAsNumbers) {
  Shown shown(Flow::kSexed);
  shown.Run();
  auto& table = Find<QTableView>(*shown.window, "OffspringTable");
  for (const OffspringColumn column : {OffspringColumn::kPlace, OffspringColumn::kRank1,
                                       OffspringColumn::kErrors2, OffspringColumn::kLikelihood}) {
    for (const Qt::SortOrder order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
      table.sortByColumn(Place(column), order);
      std::vector<double> numbers;
      for (QString& cell : Column(*table.model(), Place(column))) {
        numbers.push_back(cell == Text("--") ? -1 : cell.toDouble());
      }
      if (order == Qt::DescendingOrder) {
        std::reverse(numbers.begin(), numbers.end());
      }
      EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end()));
    }
  }
}

TEST_F(ResultsAllocationTest, FindsByNameAndClass) {
  Shown shown(Flow::kSexed);
  shown.Run();
  auto& find = Find<QLineEdit>(*shown.window, "OffspringFind");
  auto& show = Find<QComboBox>(*shown.window, "OffspringShow");
  const QAbstractItemModel& model = ModelIn(*shown.window, "OffspringTable");
  const Rows all = ModelRows(model);
  QTest::keyClicks(&find,
                   Text("male01"));  // Male01 and Female01, and whoever they are parents of
  Rows expected = {all.front()};
  std::copy_if(all.begin() + 1, all.end(), std::back_inserter(expected), [](const auto& row) {
    const QString names = row[Place(OffspringColumn::kOffspring)] + Text("|") +
                          row[Place(OffspringColumn::kParent1)] + Text("|") +
                          row[Place(OffspringColumn::kParent2)];
    return names.contains(Text("male01"), Qt::CaseInsensitive);
  });
  EXPECT_TRUE(expected.size() > 1 && expected.size() < all.size());
  EXPECT_EQ(ModelRows(model), expected);
  QTest::keyClick(&find, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&find, Qt::Key_Delete);

  const AllocationCounters& counters = shown.run.result.counters.back();
  const std::vector<double> numbers = {counters.both_collected, counters.only_par1_collected,
                                       counters.only_par2_collected, counters.none_collected};
  for (int k = 0; k < 4; ++k) {
    show.setCurrentIndex(k + 1);
    EXPECT_EQ(static_cast<double>(model.rowCount()), numbers[static_cast<std::size_t>(k)]);
    for (const QString& cell : Column(model, Place(OffspringColumn::kClass))) {
      EXPECT_EQ(cell, show.currentText());
    }
  }
}

TEST_F(ResultsAllocationTest, ShowsSeveralPairsAndNoneAsListed) {
  Shown shown(Flow::kNonSexed);
  shown.settings.error_model.kind = ErrorKind::kNoError;
  shown.settings.loci_in_use = {"Mir03Di", "Mir14Di"};
  shown.Run();
  const std::vector<int> listed = ListedPairs();
  const QAbstractItemModel& model = ModelIn(*shown.window, "OffspringTable");
  int several = 0;
  int none = 0;
  for (std::size_t k = 0; k < listed.size(); ++k) {
    several += listed[k] > 1 || listed[k] < 0 ? 1 : 0;
    none += listed[k] == 0 ? 1 : 0;
    const QModelIndex cell = model.index(static_cast<int>(k), Place(OffspringColumn::kPairs));
    EXPECT_EQ(cell.data().toString(), listed[k] < 0 ? Text("5+") : QString::number(listed[k]));
  }
  EXPECT_TRUE(several > 0 && none > 0);
  auto& show = Find<QComboBox>(*shown.window, "OffspringShow");
  show.setCurrentText(Text("several pairs"));
  EXPECT_EQ(model.rowCount(), several);
  show.setCurrentText(Text("no pair"));
  EXPECT_EQ(model.rowCount(), none);
  EXPECT_EQ(Find<QLabel>(*shown.window, "OffspringCount").text(),
            Text("%1 of 50 offspring").arg(none));
  Find<QTableView>(*shown.window, "OffspringTable").selectRow(0);
  EXPECT_TRUE(Find<QLabel>(*shown.window, "ComparisonVerdict").text().startsWith(Text("No pair")));
  EXPECT_EQ(Column(ModelIn(*shown.window, "ComparisonTable"), Place(ComparisonColumn::kParent1)),
            QStringList({QString(), QString()}));
}

TEST_F(ResultsAllocationTest, CopiesSelectedRowsWithHeads) {
  Shown shown(Flow::kNonSexed);
  shown.Run();
  auto& table = Find<QTableView>(*shown.window, "OffspringTable");
  const Rows rows = ModelRows(*table.model());
  table.selectRow(4);
  table.selectionModel()->select(table.model()->index(1, 0),
                                 QItemSelectionModel::Select | QItemSelectionModel::Rows);
  const QString expected = rows[0].join(QLatin1Char('\t')) + Text("\n") +
                           rows[2].join(QLatin1Char('\t')) + Text("\n") +
                           rows[5].join(QLatin1Char('\t')) + Text("\n");
  QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), expected);
  QGuiApplication::clipboard()->clear();
  Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(1);
  QTest::mouseClick(&Find<QPushButton>(*shown.window, "OffspringCopy"), Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), expected);
}

TEST_F(ResultsAllocationTest, CopiedNamesStayTextAndFiguresNumbers) {
  DataTableModel model;
  model.SetTable(
      {{Text("Name"), Text("Value")},
       {{Text("Mar1"), Text("0.25")}, {Text("00012"), Text("NA")}, {Text("a<b"), Text("-3")}}});
  CopiedRows rows(model, QLatin1Char(','));
  rows.Add(0, 2);
  EXPECT_EQ(rows.Plain(), Text("Name\tValue\nMar1\t0,25\n00012\tNA\na<b\t-3\n"));
  QStringList cells;
  for (const QString& cell : rows.Html().split(Text("<td "), Qt::SkipEmptyParts).mid(1)) {
    const QString kind = cell.startsWith(Text("x:num=")) ? cell.section(QLatin1Char('"'), 1, 1)
                         : cell.contains(Text(R"(mso-number-format:"\@")")) ? Text("text")
                                                                            : Text("neither");
    cells += kind + Text(" ") + cell.section(QLatin1Char('>'), 1, 1).section(Text("</td"), 0, 0);
  }
  EXPECT_EQ(Bytes(cells.join(Text("; "))),
            "text Name; text Value; text Mar1; 0.25 0,25; text 00012; text NA; text a&lt;b; -3 -3");
}

TEST_F(ResultsAllocationTest, ExportsTheRunAsTheCommandLineDoes) {
  Shown shown(Flow::kNonSexed);
  shown.Run();
  folder_.Write("sexes.txt", "Nobody m\n");
  UrlTaker taker;
  QDesktopServices::setUrlHandler(Text("file"), &taker, "Take");
  script_.Await("Tabs").Click("ExportRun").Await("Exports").Click("ExportForm_tsv");
  script_.Click("ExportForm_pedigree").Type("ExportSexes", Text("sexes.txt"));
  script_.Click("ExportWrite").Answer().Await("Exports");
  script_.Do([](QWidget&) { EXPECT_FALSE(QFile::exists(Text("p/Pedigree.tsv"))); });
  script_.Type("ExportSexes", Text("")).Click("ExportWrite").Answer().Await("Tabs");
  EXPECT_TRUE(script_.Run([&] { shown.window->activateWindow(); }));
  EXPECT_EQ(script_.Messages().value(0), Text("There is no individual of that name!"));
  ExpectAsCommandLine(
      "p", CommandHere(CommandOf(shown.settings) + " && kaldo export p --as tsv,pedigree"));

  script_.Click("HtmlReport").Do([](QWidget&) {});
  EXPECT_TRUE(script_.Run([&] { shown.window->activateWindow(); }));
  QDesktopServices::unsetUrlHandler(Text("file"));
  EXPECT_EQ(taker.url, QUrl::fromLocalFile(Text("p/Report.html")));
  test::RunCommandLine(folder_.Path(""), Text("kaldo verify p"));
  EXPECT_TRUE(test::ReadFile("p/Run record.toml").find(R"(["tsv", "html", "pedigree"])") !=
              std::string::npos);
}

TEST_F(ResultsAllocationTest, ExportsWhatIsShown) {
  Shown shown(Flow::kNonSexed);
  shown.Run();
  auto& table = Find<ResultTable>(*shown.window, "OffspringTable");
  table.sortByColumn(Place(OffspringColumn::kLikelihood), Qt::DescendingOrder);
  Find<QLineEdit>(*shown.window, "OffspringFind").setText(Text("Adult3"));
  EXPECT_TRUE(table.SaveCsv(Text("table.csv")));
  EXPECT_TRUE(table.model()->rowCount() > 1);
  EXPECT_EQ(test::ParseCsv(test::ReadFile("table.csv")), ModelRows(*table.model()));
}

TEST_F(ResultsAllocationTest, ComparesWithEveryPair) {
  Shown shown(Flow::kNonSexed);
  shown.settings.loci_in_use = {"Mir14Di", "Mir21Di", "Mir30Tet"};
  shown.settings.error_model.kind = ErrorKind::kUniform;
  shown.settings.error_model.epsilon = 0.01;
  shown.Run();
  auto& table = Find<QTableView>(*shown.window, "OffspringTable");
  auto& combo = Find<QComboBox>(*shown.window, "ComparisonPair");
  const QAbstractItemModel& model = ModelIn(*shown.window, "ComparisonTable");
  std::set<QString> signs;
  int second_pairs = 0;
  for (int row = 0; row < table.model()->rowCount(); ++row) {
    table.selectRow(row);
    const auto pairs = shown.run.result.outcomes[static_cast<std::size_t>(row)].Pairs();
    for (std::size_t pair = 0; pair < pairs.size(); ++pair) {
      combo.setCurrentIndex(static_cast<int>(pair));
      second_pairs += pair == 1 ? 1 : 0;
      CompareRows(shown, row, pairs[pair], model, signs);
    }
  }
  EXPECT_TRUE(second_pairs > 0);
  EXPECT_EQ(signs.size(), std::size_t{5});  // exact, tolerated, excluded, unmeasured, undefined
}

TEST_F(ResultsAllocationTest, CountsTheAllelesOfTheFiles) {
  Shown shown(Flow::kSexed);
  shown.Run();
  Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(3);
  const auto copies = CopiesInFiles(
      {shown.settings.males_file, shown.settings.females_file, shown.settings.offspring_file}, 8);
  const QAbstractItemModel& model = ModelIn(*shown.window, "AllelesTable");
  auto& next = Find<QPushButton>(*shown.window, "AllelesNext");
  for (std::size_t locus = 0; locus < copies.size(); ++locus) {
    EXPECT_EQ(model.rowCount(), static_cast<int>(copies[locus].size()));
    int row = 0;
    int all = 0;
    double sum = 0;
    for (const auto& [size, number] : copies[locus]) {
      EXPECT_EQ(model.index(row, 0).data().toString(), QString::number(size));
      EXPECT_EQ(model.index(row, 1).data().toString(), QString::number(number));
      sum += model.index(row++, 2).data().toString().toDouble();
      all += number;
    }
    EXPECT_TRUE(std::abs(sum - 1) < 1e-5);
    EXPECT_TRUE(
        Find<QLabel>(*shown.window, "AllelesCopies").text().startsWith(QString::number(all)));
    EXPECT_EQ(next.isEnabled(), locus + 1 < copies.size());
    QTest::mouseClick(&next, Qt::LeftButton);
  }
}

TEST_F(ResultsAllocationTest, ShowsTheSequenceOfTheReport) {
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    Shown shown(flow);
    shown.settings.sequence.emplace();
    shown.Run();
    test::ExpectFitsSmallMonitor(*shown.window);
    Rows expected;
    for (const QStringList& row : test::ReportRows("p/Sequence results.xls")) {
      bool is_number = false;
      row[0].toInt(&is_number);
      if (is_number && row.size() > 3) {
        expected.push_back(row);
      }
    }
    Rows rows = ModelRows(ModelIn(*shown.window, "SequenceTable"));
    rows.erase(rows.begin());
    EXPECT_TRUE(rows.back()[1].startsWith(Text("+ Mir30Tet")));
    for (QStringList& row : rows) {
      row.removeAt(1);
    }
    EXPECT_EQ(rows, expected);
  }
  Shown without(Flow::kNonSexed);
  without.Run();
  EXPECT_EQ(without.window->findChild<QWidget*>(Text("SequenceTable")), nullptr);
}

TEST_F(ResultsAllocationTest, TellsWhatWasRun) {
  Shown shown(Flow::kSexed);
  shown.settings.error_model = ErrorModel{};
  shown.Run();
  const auto& summary = Find<QTextBrowser>(*shown.window, "SummaryText");
  EXPECT_TRUE(!summary.toPlainText().contains(Text("in 2 groups")));
  QTest::mouseClick(&Find<QPushButton>(*shown.window, "SummaryMore"), Qt::LeftButton);
  const QString text = summary.toPlainText();
  for (const char* part :
       {"16 males and 16 females in 2 groups", "54 (", "8 of 8: Mir03Di", "Allocation results.xls",
        "Max like pairs.txt", "Run record.toml", "no possible pair"}) {
    EXPECT_TRUE(text.contains(Text(part))) << part;
  }
  EXPECT_TRUE(!text.contains(Text("Sequence results.xls")));
  const Rows table = ModelRows(ModelIn(*shown.window, "SummaryTable"));
  EXPECT_EQ(table.back().mid(0, 2), QStringList({Text("pairs UCM + UCF"), Text("3")}));
}

TEST_F(ResultsAllocationTest, ServesItsButtonsAndEsc) {
  Shown shown(Flow::kNonSexed);
  shown.Run();
  EXPECT_TRUE(shown.window->isWindow() && !shown.window->isModal());
  EXPECT_EQ(shown.window->windowTitle(), Text("KALDO 1.0 - p - results"));
  auto& copy = Find<QPushButton>(*shown.window, "CopyCommand");
  EXPECT_TRUE(!copy.isEnabled());
  shown.window->SetCommand(Text("kaldo allocate --project 'a b'"));
  QTest::mouseClick(&copy, Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), Text("kaldo allocate --project 'a b'"));
  UrlTaker taker;
  QDesktopServices::setUrlHandler(Text("file"), &taker, "Take");
  QTest::mouseClick(&Find<QPushButton>(*shown.window, "OpenFolder"), Qt::LeftButton);
  QDesktopServices::unsetUrlHandler(Text("file"));
  EXPECT_EQ(taker.url, QUrl::fromLocalFile(Text("p")));
  auto& table = Find<QTableView>(*shown.window, "OffspringTable");
  Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(1);
  table.setFocus();
  EXPECT_TRUE(QTest::qWaitForWindowActive(shown.window));
  QTest::keyClick(&table, Qt::Key_Escape);
  EXPECT_TRUE(shown.window->isVisible()) << "an Esc too many loses no results";
  QTest::keyClick(&table, Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown.window.isNull(); }));
}

TEST_F(ResultsAllocationTest, GoesFromFieldToFieldByTab) {
  Shown shown(Flow::kNonSexed);
  shown.Run();
  Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(1);
  EXPECT_TRUE(QTest::qWaitForWindowActive(shown.window));
  Find<QLineEdit>(*shown.window, "OffspringFind").setFocus();
  QStringList names;
  for (int step = 0; step < 7; ++step) {
    names += QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(names.join(QLatin1Char(' ')),
            Text("OffspringFind OffspringShow OffspringTable OffspringCopy OffspringExport "
                 "ComparisonTable ComparisonCopy"));
}

TEST_F(ResultsAllocationTest, KeepsTheRulesOfModels) {
  Shown shown(Flow::kNonSexed);
  shown.Run();
  using Mode = QAbstractItemModelTester::FailureReportingMode;
  for (const char* name : {"OffspringTable", "ComparisonTable", "AllelesTable", "SummaryTable",
                           "ParentsTable", "LociTable"}) {
    const QAbstractItemModelTester tester(&ModelIn(*shown.window, name), Mode::Fatal);
    Find<QTableView>(*shown.window, "OffspringTable").selectRow(7);
    Find<QComboBox>(*shown.window, "OffspringShow").setCurrentIndex(2);
    Find<QComboBox>(*shown.window, "OffspringShow").setCurrentIndex(0);
    Find<QComboBox>(*shown.window, "AllelesLocus").setCurrentIndex(3);
  }
}

}  // namespace
}  // namespace kaldo

#include "results_allocation_test.moc"

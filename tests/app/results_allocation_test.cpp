// SPDX-License-Identifier: GPL-3.0-or-later
// The window of an allocation, compared with the reports of the same run.
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <map>
#include <set>

#include "app/results/allocation_window.h"
#include "app/results/comparison_model.h"
#include "app/results/offspring_model.h"
#include "app/results/result_table.h"
#include "method/allocation_decision.h"
#include "tests/app/results_support.h"

namespace kaldo {

using test::Column;
using test::Find;
using test::ModelOf;
using test::ModelRows;
using test::Rows;

namespace {

constexpr int Place(OffspringColumn column) { return static_cast<int>(column); }
constexpr int Place(ComparisonColumn column) { return static_cast<int>(column); }

struct Shown : test::Shown<AllocationSettings, AllocationRun, AllocationWindow> {
  explicit Shown(Flow flow)
      : test::Shown<AllocationSettings, AllocationRun, AllocationWindow>(test::ExampleAllocation,
                                                                         flow) {}
};

/// The lines of the offspring in the results report.
Rows OffspringLines(const QString& project) {
  Rows lines;
  bool inside = false;
  for (const QStringList& row : test::ReportRows(project + Text("/Allocation results.xls"))) {
    inside = inside ? !(row.size() == 1 && !lines.empty()) : row[0] == Text("OFFSPRING");
    if (inside && row.size() == 5 && row[0] != Text("OFFSPRING")) {
      lines.push_back(row);
    }
  }
  return lines;
}

/// How many pairs "Max like pairs.txt" lists for each offspring; -1 for "more than 5".
std::vector<int> ListedPairs(const QString& project) {
  std::vector<int> pairs;
  const QString text = QString::fromUtf8(test::ReadFile(project + Text("/Max like pairs.txt")));
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
    for (const QByteArray& line : test::ReadFile(PathText(file)).split('\n')) {
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

}  // namespace

class ResultsAllocationTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void NamesTheParentsOfTheReport_data() {
    QTest::addColumn<bool>("sexed");
    QTest::addColumn<double>("epsilon");
    QTest::newRow("non-sexed") << false << -1.0;
    QTest::newRow("sexed") << true << -1.0;
    QTest::newRow("non-sexed, uniform") << false << 0.01;
    QTest::newRow("sexed, uniform") << true << 0.01;
  }

  void NamesTheParentsOfTheReport() {
    QFETCH(bool, sexed);
    QFETCH(double, epsilon);
    Shown shown(sexed ? Flow::kSexed : Flow::kNonSexed);
    if (epsilon >= 0) {
      shown.settings.error_model.kind = ErrorKind::kUniform;
      shown.settings.error_model.epsilon = epsilon;
    }
    shown.Run();
    const QAbstractItemModel& model = ModelOf(*shown.window, "OffspringTable");
    const Rows lines = OffspringLines(shown.project);
    QCOMPARE(lines.size(), shown.run.result.outcomes.size());
    QCOMPARE(model.rowCount(), static_cast<int>(lines.size()));
    for (int row = 0; row < model.rowCount(); ++row) {
      const auto cell = [&](OffspringColumn column) {
        return model.index(row, Place(column)).data().toString();
      };
      using C = OffspringColumn;
      const QStringList of_table = {cell(C::kOffspring), cell(C::kParent1), cell(C::kParent2),
                                    Text("[%1,%2]").arg(cell(C::kRank1), cell(C::kRank2)),
                                    Text("[%1,%2]").arg(cell(C::kErrors1), cell(C::kErrors2))};
      QCOMPARE(of_table, lines[static_cast<std::size_t>(row)]);
    }
  }

  void SortsNumbersAsNumbers() {
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
        QVERIFY(std::is_sorted(numbers.begin(), numbers.end()));
      }
    }
  }

  void FindsByNameAndClass() {
    Shown shown(Flow::kSexed);
    shown.Run();
    auto& find = Find<QLineEdit>(*shown.window, "OffspringFind");
    auto& show = Find<QComboBox>(*shown.window, "OffspringShow");
    const QAbstractItemModel& model = ModelOf(*shown.window, "OffspringTable");
    const Rows all = ModelRows(model);
    QTest::keyClicks(&find,
                     Text("male01"));  // Male01 and Female01, and whoever they are parents of
    Rows expected = {all.front()};
    std::copy_if(all.begin() + 1, all.end(), std::back_inserter(expected), [](const auto& row) {
      return row.mid(1, 3).join(QLatin1Char('|')).contains(Text("male01"), Qt::CaseInsensitive);
    });
    QVERIFY(expected.size() > 1 && expected.size() < all.size());
    QCOMPARE(ModelRows(model), expected);
    QTest::keyClick(&find, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&find, Qt::Key_Delete);

    const AllocationCounters& counters = shown.run.result.LastCounters();
    const std::vector<double> numbers = {counters.both_collected, counters.only_par1_collected,
                                         counters.only_par2_collected, counters.none_collected};
    for (int k = 0; k < 4; ++k) {
      show.setCurrentIndex(k + 1);
      QCOMPARE(static_cast<double>(model.rowCount()), numbers[static_cast<std::size_t>(k)]);
      for (const QString& cell : Column(model, Place(OffspringColumn::kClass))) {
        QCOMPARE(cell, show.currentText());
      }
    }
  }

  void ShowsSeveralPairsAndNoneAsListed() {
    Shown shown(Flow::kNonSexed);
    shown.settings.error_model.kind = ErrorKind::kNoError;
    shown.settings.loci_in_use = {"Mir03Di", "Mir14Di"};
    shown.Run();
    const std::vector<int> listed = ListedPairs(shown.project);
    const QAbstractItemModel& model = ModelOf(*shown.window, "OffspringTable");
    int several = 0;
    int none = 0;
    for (std::size_t k = 0; k < listed.size(); ++k) {
      several += listed[k] > 1 || listed[k] < 0 ? 1 : 0;
      none += listed[k] == 0 ? 1 : 0;
      const QModelIndex cell = model.index(static_cast<int>(k), Place(OffspringColumn::kPairs));
      QCOMPARE(cell.data().toString(), listed[k] < 0 ? Text("5+") : QString::number(listed[k]));
    }
    QVERIFY(several > 0 && none > 0);
    auto& show = Find<QComboBox>(*shown.window, "OffspringShow");
    show.setCurrentText(Text("several pairs"));
    QCOMPARE(model.rowCount(), several);
    show.setCurrentText(Text("no pair"));
    QCOMPARE(model.rowCount(), none);
    QCOMPARE(Find<QLabel>(*shown.window, "OffspringCount").text(),
             Text("%1 of 50 offspring").arg(none));
    Find<QTableView>(*shown.window, "OffspringTable").selectRow(0);
    QVERIFY(Find<QLabel>(*shown.window, "ComparisonVerdict").text().startsWith(Text("No pair")));
    QCOMPARE(Column(ModelOf(*shown.window, "ComparisonTable"), Place(ComparisonColumn::kParent1)),
             QStringList({QString(), QString()}));
  }

  void CopiesSelectedRowsWithHeads() {
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
    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
    QGuiApplication::clipboard()->clear();
    Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(1);
    QTest::mouseClick(&Find<QPushButton>(*shown.window, "OffspringCopy"), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
  }

  void ExportsWhatIsShown() {
    Shown shown(Flow::kNonSexed);
    shown.Run();
    auto& table = Find<ResultTable>(*shown.window, "OffspringTable");
    table.sortByColumn(Place(OffspringColumn::kLikelihood), Qt::DescendingOrder);
    Find<QLineEdit>(*shown.window, "OffspringFind").setText(Text("Adult3"));
    const QString path = shown.folder.filePath(Text("table.csv"));
    QVERIFY(table.SaveCsv(path));
    QVERIFY(table.model()->rowCount() > 1);
    QCOMPARE(test::ParseCsv(test::ReadFile(path)), ModelRows(*table.model()));
  }

  void ComparesWithEveryPair() {
    Shown shown(Flow::kNonSexed);
    shown.settings.loci_in_use = {"Mir14Di", "Mir21Di", "Mir30Tet"};
    shown.settings.error_model.kind = ErrorKind::kUniform;
    shown.settings.error_model.epsilon = 0.01;
    shown.Run();
    auto& table = Find<QTableView>(*shown.window, "OffspringTable");
    auto& combo = Find<QComboBox>(*shown.window, "ComparisonPair");
    const QAbstractItemModel& model = ModelOf(*shown.window, "ComparisonTable");
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
    QVERIFY(second_pairs > 0);
    QCOMPARE(signs.size(), std::size_t{5});  // exact, tolerated, excluded, unmeasured, not typed
  }

  void CountsTheAllelesOfTheFiles() {
    Shown shown(Flow::kSexed);
    shown.Run();
    Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(2);
    const auto copies = CopiesInFiles(
        {shown.settings.males_file, shown.settings.females_file, shown.settings.offspring_file}, 8);
    const QAbstractItemModel& model = ModelOf(*shown.window, "AllelesTable");
    auto& next = Find<QPushButton>(*shown.window, "AllelesNext");
    for (std::size_t locus = 0; locus < copies.size(); ++locus) {
      QCOMPARE(model.rowCount(), static_cast<int>(copies[locus].size()));
      int row = 0;
      int all = 0;
      double sum = 0;
      for (const auto& [size, number] : copies[locus]) {
        QCOMPARE(model.index(row, 0).data().toString(), QString::number(size));
        QCOMPARE(model.index(row, 1).data().toString(), QString::number(number));
        sum += model.index(row++, 2).data().toString().toDouble();
        all += number;
      }
      QVERIFY(std::abs(sum - 1) < 1e-5);
      QVERIFY(Find<QLabel>(*shown.window, "AllelesCopies").text().startsWith(QString::number(all)));
      QCOMPARE(next.isEnabled(), locus + 1 < copies.size());
      QTest::mouseClick(&next, Qt::LeftButton);
    }
  }

  void ShowsTheSequenceOfTheReport() {
    for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
      Shown shown(flow);
      shown.settings.sequence.emplace();
      shown.Run();
      Rows expected;
      for (const QStringList& row :
           test::ReportRows(shown.project + Text("/Sequence results.xls"))) {
        bool is_number = false;
        row[0].toInt(&is_number);
        if (is_number && row.size() > 3) {
          expected.push_back(row);
        }
      }
      Rows rows = ModelRows(ModelOf(*shown.window, "SequenceTable"));
      rows.erase(rows.begin());
      QVERIFY(rows.back()[1].startsWith(Text("+ Mir30Tet")));
      for (QStringList& row : rows) {
        row.removeAt(1);
      }
      QCOMPARE(rows, expected);
    }
    Shown without(Flow::kNonSexed);
    without.Run();
    QCOMPARE(without.window->findChild<QWidget*>(Text("SequenceTable")), nullptr);
  }

 private:
  /// Compares the rows of one pair with what the core finds.
  static void CompareRows(const Shown& shown, int offspring, ParentPair pair,
                          const QAbstractItemModel& model, std::set<QString>& signs) {
    using C = ComparisonColumn;
    const AllocationInput& input = shown.run.input;
    const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(offspring)};
    const auto loci = CompareWithPair(input.table, slot, pair, shown.run.result.loci);
    QCOMPARE(model.rowCount(), 3);
    for (int row = 0; row < 3; ++row) {
      const auto cell = [&](C column) { return model.index(row, Place(column)).data().toString(); };
      const LocusComparison& locus = loci[static_cast<std::size_t>(row)];
      QCOMPARE(cell(C::kCondition), Text(Label(locus.condition)));
      QCOMPARE(cell(C::kUnit), QString::number(locus.unit_distance.Value()));
      QCOMPARE(cell(C::kParent2),
               Text("%1/%2").arg(locus.par2.allele1.Value()).arg(locus.par2.allele2.Value()));
      if (locus.offspring.IsMissing()) {
        signs.insert(cell(C::kOffset1));
        QCOMPARE(cell(C::kOffset1), Text("*"));
        QCOMPARE(cell(C::kOffspring), Text("not typed"));
        continue;
      }
      QCOMPARE(
          cell(C::kOffspring),
          Text("%1/%2").arg(locus.offspring.allele1.Value()).arg(locus.offspring.allele2.Value()));
      const bool unmeasured = locus.condition == LocusCondition::kOneToEach;
      const auto sign = [&](UnitDistances offset) {
        return unmeasured            ? Text("#")
               : offset.Value() == 0 ? Text("✓")
               : offset.Value() == 1 ? Text("≈")
                                     : Text("✗");
      };
      QCOMPARE(cell(C::kOffset1),
               sign(locus.offset_par1) + Text(" ") + QString::number(locus.offset_par1.Value()));
      QCOMPARE(cell(C::kOffset2),
               sign(locus.offset_par2) + Text(" ") + QString::number(locus.offset_par2.Value()));
      QCOMPARE(cell(C::kDistance1),
               unmeasured ? Text("#") : QString::number(locus.distance_par1.Value()));
      QCOMPARE(cell(C::kDistance2),
               unmeasured ? Text("#") : QString::number(locus.distance_par2.Value()));
      signs.insert(cell(C::kOffset1).left(1));
      signs.insert(cell(C::kOffset2).left(1));
    }
  }
};

}  // namespace kaldo

QTEST_MAIN(kaldo::ResultsAllocationTest)
#include "results_allocation_test.moc"

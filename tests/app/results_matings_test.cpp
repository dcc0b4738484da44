// SPDX-License-Identifier: GPL-3.0-or-later
// Who had offspring with whom, in the window of an allocation: compared with the table of the run.
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QXmlStreamReader>
#include <algorithm>
#include <map>

#include "app/results/allocation_window.h"
#include "app/results/offspring_columns.h"
#include "app/support/results_test.h"

namespace kaldo {

using test::Column;
using test::Find;
using test::TsvRow;

namespace {

using Shown = test::Shown<AllocationSettings, AllocationRun, AllocationWindow>;

/// Names of offspring by the names of their parents, and whether one of them is only likely.
struct NamedFamily {
  QStringList offspring;
  bool has_likely = false;
};
using NamedFamilies = std::map<QStringList, NamedFamily>;

/// The families of "/Confidence.tsv" whose sides are not open. Where sexes are not known each
/// stands under its parents in either order.
NamedFamilies FamiliesOfTheRun(Flow flow) {
  const QStringList sides = flow == Flow::kSexed ? QStringList{Text("father"), Text("mother")}
                                                 : QStringList{Text("parent1"), Text("parent2")};
  NamedFamilies families;
  for (const TsvRow& row : test::TsvRows("p/Confidence.tsv")) {
    QStringList parents;
    bool likely = false;
    for (const QString& side : sides) {
      const QString verdict = row.at(side + Text("_verdict"));
      parents += verdict == Text("named")         ? row.at(side)
                 : verdict == Text("uncollected") ? Text("UC")
                                                  : Text("open");
      likely = likely || (verdict == Text("named") && row.at(Text("p_") + side).toDouble() < 0.95);
    }
    const QStringList turned = {parents[1], parents[0]};
    const bool twice = flow == Flow::kNonSexed && turned != parents;
    for (const QStringList& place : twice ? std::vector{parents, turned} : std::vector{parents}) {
      if (!place.contains(Text("open"))) {
        families[place].offspring += row.at(Text("offspring"));
        families[place].has_likely = families[place].has_likely || likely;
      }
    }
  }
  return families;
}

QStringList ParentsAt(const QAbstractItemModel& model, int row, int column) {
  return {model.headerData(row, Qt::Vertical).toString(),
          model.headerData(column, Qt::Horizontal).toString()};
}

class ResultsMatingsTest : public test::WorkplaceTest {
 protected:
  ResultsMatingsTest() { WriteExamples(); }

  /// With loci so few that some offspring are open and others only likely.
  static void RunWeakly(Shown& shown) {
    shown.settings.loci_in_use = {"Mir03Di", "Mir14Di", "Mir21Di", "Mir30Tet", "Mir08Di"};
    shown.Run();
    Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(3);
  }

  static QStringList OffspringShown(const Shown& shown) {
    return Column(test::ModelIn(*shown.window, "OffspringTable"),
                  static_cast<int>(OffspringColumn::kOffspring));
  }
};

TEST_F(ResultsMatingsTest, EveryCellHasTheOffspringOfItsParents) {
  for (const Flow flow : {Flow::kSexed, Flow::kNonSexed}) {
    Shown shown(flow);
    RunWeakly(shown);
    NamedFamilies families = FamiliesOfTheRun(flow);
    auto& table = Find<QTableView>(*shown.window, "MatingsTable");
    const QAbstractItemModel& model = *table.model();
    std::size_t filled = 0;
    bool has_likely = false;
    for (int row = 0; row < model.rowCount(); ++row) {
      for (int column = 0; column < model.columnCount(); ++column) {
        const QModelIndex index = model.index(row, column);
        const QStringList parents = ParentsAt(model, row, column);
        const auto family = families.find(parents);
        if (family == families.end()) {
          EXPECT_EQ(index.data().toString(), QString());
          continue;
        }
        ++filled;
        has_likely = has_likely || family->second.has_likely;
        const QString number = QString::number(family->second.offspring.size());
        EXPECT_EQ(index.data().toString(),
                  family->second.has_likely ? number + Text(" ◐") : number);
        table.scrollTo(index);
        const QPoint middle = table.visualRect(index).center();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, middle);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, middle);
        EXPECT_EQ(OffspringShown(shown), family->second.offspring);
        EXPECT_EQ(Find<QComboBox>(*shown.window, "OffspringShow").currentText(),
                  Text("offspring of %1 and %2").arg(parents[0], parents[1]));
        Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(3);
      }
    }
    EXPECT_EQ(filled, families.size());
    EXPECT_TRUE(has_likely && filled > 10);
  }
}

TEST_F(ResultsMatingsTest, NamesAndKeysLeadToFamilies) {
  Shown shown(Flow::kSexed);
  RunWeakly(shown);
  const NamedFamilies families = FamiliesOfTheRun(Flow::kSexed);
  auto& table = Find<QTableView>(*shown.window, "MatingsTable");
  auto& find = Find<QLineEdit>(*shown.window, "MatingsFind");
  const auto chosen = [&] {
    return ParentsAt(*table.model(), table.currentIndex().row(), table.currentIndex().column());
  };
  for (const auto& [parents, family] : families) {
    find.selectAll();
    QTest::keyClicks(&find, family.offspring.last());
    EXPECT_EQ(chosen(), parents);
    EXPECT_TRUE(table.viewport()->rect().contains(table.visualRect(table.currentIndex())));
  }
  // From one place to the next, and round again.
  find.selectAll();
  QTest::keyClicks(&find, Text("male0"));
  const QModelIndex first = table.currentIndex();
  int places = 0;
  do {
    QTest::keyClick(&find, Qt::Key_Return);
    ++places;
  } while (table.currentIndex() != first && places < 100);
  EXPECT_TRUE(places > 1 && places < 100);

  // With Ctrl the keys pass over empty cells; Enter shows the offspring.
  table.setCurrentIndex(table.model()->index(0, 0));
  QTest::keyClick(&table, Qt::Key_Right, Qt::ControlModifier);
  ASSERT_EQ(families.count(chosen()), 1U);
  const QStringList expected = families.at(chosen()).offspring;
  for (const QString& name : expected) {
    EXPECT_TRUE(Find<QLabel>(*shown.window, "MatingsDetails").text().contains(name));
  }
  QTest::keyClick(&table, Qt::Key_Return);
  EXPECT_EQ(OffspringShown(shown), expected);
}

TEST_F(ResultsMatingsTest, TheFigureHasAllNamesAndNumbersAsTexts) {
  Shown shown(Flow::kNonSexed);
  RunWeakly(shown);
  const QString path = PathText(folder_.Path("matings.svg"));
  script_.Await("Tabs").Click("MatingsSave");
  test::PickInDialog(script_, path);
  script_.Until([&path] { return QFile::exists(path); }, "the figure is saved");
  EXPECT_TRUE(script_.Run([&] { shown.window->activateWindow(); }));
  QStringList texts;
  QXmlStreamReader reader(QByteArray::fromStdString(test::ReadFile("matings.svg")));
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == Text("text")) {
      texts += reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
    }
  }
  const QAbstractItemModel& model = test::ModelIn(*shown.window, "MatingsTable");
  for (int row = 0; row < model.rowCount(); ++row) {
    const QString name = model.headerData(row, Qt::Vertical).toString();
    EXPECT_EQ(texts.count(name), 2) << Bytes(name);  // at its row and above its column
    for (int column = 0; column < model.columnCount(); ++column) {
      texts.removeOne(model.index(row, column).data().toString());
    }
    texts.removeAll(name);
  }
  EXPECT_EQ(texts.filter(QRegularExpression(Text("^[0-9]"))), QStringList());
}

}  // namespace
}  // namespace kaldo

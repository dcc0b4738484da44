// SPDX-License-Identifier: GPL-3.0-or-later
// How sure an allocation is, in its window: compared with the tables of the same run.
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <array>
#include <map>
#include <set>

#include "app/results/allocation_window.h"
#include "app/results/chart_view.h"
#include "app/results/comparison_model.h"
#include "app/results/offspring_columns.h"
#include "app/results/parents_model.h"
#include "app/support/results_test.h"

namespace kaldo {

using test::Column;
using test::Find;
using test::ModelIn;
using test::Rows;
using test::TsvRow;
using test::TsvRows;

namespace {

constexpr int Place(OffspringColumn column) { return static_cast<int>(column); }

using Shown = test::Shown<AllocationSettings, AllocationRun, AllocationWindow>;

/// The row in words, from its own table: what is less sure decides.
QString WordFor(const TsvRow& row, const std::array<QString, 2>& sides) {
  QStringList words;
  for (const QString& side : sides) {
    const QString verdict = row.at(side + Text("_verdict"));
    words += verdict == Text("uncollected")                 ? Text("not collected")
             : verdict == Text("open")                      ? Text("open")
             : row.at(Text("p_") + side).toDouble() >= 0.95 ? Text("sure")
                                                            : Text("likely");
  }
  for (const char* word : {"open", "likely", "not collected"}) {
    if (words.contains(Text(word))) {
      return Text(word);
    }
  }
  return Text("sure");
}

bool NeedsLook(const TsvRow& row, const std::array<QString, 2>& sides) {
  return std::any_of(sides.begin(), sides.end(), [&](const QString& side) {
    const QString reported = row.at(Text("p_") + side + Text("_reported"));
    return row.at(side + Text("_verdict")) == Text("open") || reported == Text("NA") ||
           reported.toDouble() < 0.5;
  });
}

/// The example with loci so few that every class and every doubt occurs.
void Weaken(Shown& shown) {
  shown.settings.loci_in_use = {"Mir03Di", "Mir14Di", "Mir21Di", "Mir30Tet"};
}

class ResultsCertaintyTest : public test::WorkplaceTest {
 protected:
  ResultsCertaintyTest() { WriteExamples(); }
};

TEST_F(ResultsCertaintyTest, TheOffspringTableTellsWhatTheTableOfTheRunTells) {
  using C = OffspringColumn;
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    Shown shown(flow);
    Weaken(shown);
    shown.Run();
    const std::array<QString, 2> sides =
        flow == Flow::kSexed ? std::array<QString, 2>{Text("father"), Text("mother")}
                             : std::array<QString, 2>{Text("parent1"), Text("parent2")};
    const auto rows = TsvRows("p/Confidence.tsv");
    const QAbstractItemModel& model = ModelIn(*shown.window, "OffspringTable");
    ASSERT_EQ(model.rowCount(), static_cast<int>(rows.size()));
    std::map<QString, int> words;
    int to_check = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
      const TsvRow& expected = rows[static_cast<std::size_t>(row)];
      const auto cell = [&](C column) { return model.index(row, Place(column)).data().toString(); };
      const QString word = WordFor(expected, sides);
      EXPECT_TRUE(cell(C::kCertainty).endsWith(Text(" ") + word))
          << cell(C::kCertainty).toStdString();
      ++words[word];
      to_check += NeedsLook(expected, sides) ? 1 : 0;
      for (int k = 0; k < 2; ++k) {
        const auto of_side = [&](C first) {
          return cell(
              static_cast<C>(Place(first) + k * (Place(C::kCandidate2) - Place(C::kCandidate1))));
        };
        const auto expect_number = [&](const QString& found, const char* column) {
          const QString number = expected.at(Text(column).arg(sides.at(std::size_t(k))));
          EXPECT_EQ(found == Text("NA"), number == Text("NA"));
          EXPECT_NEAR(found.toDouble(), number.toDouble(), 1e-5 * number.toDouble());
        };
        const auto expect_text = [&](const QString& found, const char* column) {
          EXPECT_EQ(found, expected.at(Text(column).arg(sides.at(std::size_t(k)))));
        };
        expect_text(of_side(C::kCandidate1), "%1");
        expect_number(of_side(C::kProbability1), "p_%1");
        expect_text(of_side(C::kVerdict1), "%1_verdict");
        expect_text(of_side(C::kRunnerUp1), "%1_runner_up");
        expect_number(of_side(C::kRunnerUpProbability1), "p_%1_runner_up");
        expect_number(of_side(C::kUncollected1), "p_%1_uncollected");
        expect_text(cell(k == 0 ? C::kParent1 : C::kParent2), "%1_reported");
        expect_number(cell(k == 0 ? C::kReported1 : C::kReported2), "p_%1_reported");
      }
    }
    EXPECT_TRUE(words.size() >= 3 && to_check > 0);
    auto& show = Find<QComboBox>(*shown.window, "OffspringShow");
    show.setCurrentText(Text("to check"));
    EXPECT_EQ(model.rowCount(), to_check);
    for (const auto& [word, number] : words) {
      show.setCurrentIndex(show.findText(word, Qt::MatchEndsWith));
      EXPECT_EQ(model.rowCount(), number) << word.toStdString();
    }
  }
}

TEST_F(ResultsCertaintyTest, TheSummaryLeadsToWhatNeedsALook) {
  Shown shown(Flow::kSexed);
  Weaken(shown);
  shown.Run();
  const std::array<QString, 2> sides{Text("father"), Text("mother")};
  const auto rows = TsvRows("p/Confidence.tsv");
  int both = 0;
  QStringList to_check;
  for (const TsvRow& row : rows) {
    both += row.at(Text("father_verdict")) == Text("named") &&
                    row.at(Text("mother_verdict")) == Text("named")
                ? 1
                : 0;
    if (NeedsLook(row, sides)) {
      to_check += row.at(Text("offspring"));
    }
  }
  const QString text = Find<QTextBrowser>(*shown.window, "SummaryText").toPlainText();
  EXPECT_TRUE(text.contains(Text("%1 of %2 offspring have both parents in your files; %3 need a "
                                 "look.")
                                .arg(QString::number(both), QString::number(rows.size()),
                                     QString::number(to_check.size()))))
      << text.toStdString();
  auto& list = Find<QListWidget>(*shown.window, "SummaryToCheck");
  auto& table = Find<QTableView>(*shown.window, "OffspringTable");
  const auto chosen = [&] {
    return table.model()
        ->index(table.currentIndex().row(), Place(OffspringColumn::kOffspring))
        .data()
        .toString();
  };
  QStringList listed;
  for (int line = 0; line < list.count(); ++line) {
    listed += list.item(line)->text().section(QLatin1Char(':'), 0, 0);
  }
  Find<QComboBox>(*shown.window, "OffspringShow").setCurrentText(Text("no pair"));
  const QPoint place = list.visualItemRect(list.item(1)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(chosen(), listed[1]);
  EXPECT_TRUE(table.isVisible());
  Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(0);
  list.setCurrentRow(0);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(chosen(), listed[0]);
  listed.sort();
  to_check.sort();
  EXPECT_EQ(listed, to_check);
}

TEST_F(ResultsCertaintyTest, BarsAreHatchedWhereOffspringAreTiedOrOpen) {
  Shown shown(Flow::kNonSexed);
  Weaken(shown);
  shown.Run();
  const QAbstractItemModel& model = ModelIn(*shown.window, "OffspringTable");
  std::map<QString, double> unsettled;
  for (int row = 0; row < model.rowCount(); ++row) {
    const auto cell = [&](OffspringColumn column) {
      return model.index(row, Place(column)).data().toString();
    };
    const bool tied =
        cell(OffspringColumn::kPairs).size() > 1 || cell(OffspringColumn::kPairs).toInt() > 1;
    const bool open = cell(OffspringColumn::kCertainty).endsWith(Text("open"));
    unsettled[cell(OffspringColumn::kClass)] += tied || open ? 1 : 0;
  }
  auto& chart = Find<ChartView>(*shown.window, "SummaryChart");
  EXPECT_TRUE(chart.SaveChart(Text("chart.csv")));
  const Rows csv = test::ParseCsv(test::ReadFile("chart.csv"));
  EXPECT_EQ(csv[0], QStringList({Text("class"), Text("share"), Text("tied or open")}));
  double all = 0;
  for (std::size_t k = 1; k < csv.size(); ++k) {
    EXPECT_NEAR(csv[k][2].toDouble() * model.rowCount(), unsettled[csv[k][0]], 1e-9);
    all += unsettled[csv[k][0]];
  }
  EXPECT_TRUE(all > 0);
  EXPECT_TRUE(chart.SaveChart(Text("chart.svg")));
  const QString figure = Text(test::ReadFile("chart.svg"));
  for (const char* text : {"tied or open", "settled", "C: to a collected parent."}) {
    EXPECT_TRUE(figure.contains(Text(text))) << text;
  }
}

TEST_F(ResultsCertaintyTest, FromAParentToItsOffspring) {
  Shown shown(Flow::kSexed);
  shown.Run();
  Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(2);
  auto& parents = Find<QTableView>(*shown.window, "ParentsTable");
  const QAbstractItemModel& offspring = ModelIn(*shown.window, "OffspringTable");
  auto& all = Find<QComboBox>(*shown.window, "OffspringShow");
  const auto cell = [&](int row, ParentColumn column) {
    return parents.model()->index(row, static_cast<int>(column)).data().toString();
  };
  ASSERT_EQ(parents.model()->rowCount(), 32);
  const int total = offspring.rowCount();
  for (int row = 0; row < parents.model()->rowCount(); ++row) {
    const QString name = cell(row, ParentColumn::kParent);
    all.setCurrentIndex(0);
    int expected = 0;
    double probable = 0;
    std::set<QString> mates;
    for (int child = 0; child < total; ++child) {
      const auto of = [&](OffspringColumn column) {
        return offspring.index(child, Place(column)).data().toString();
      };
      const bool is_male = of(OffspringColumn::kParent1) == name;
      if (is_male || of(OffspringColumn::kParent2) == name) {
        ++expected;
        probable +=
            of(is_male ? OffspringColumn::kReported1 : OffspringColumn::kReported2).toDouble();
        mates.insert(of(is_male ? OffspringColumn::kParent2 : OffspringColumn::kParent1));
      }
    }
    mates.erase(Text("UC"));
    EXPECT_EQ(cell(row, ParentColumn::kOffspring).toInt(), expected);
    EXPECT_EQ(cell(row, ParentColumn::kMates).toInt(), static_cast<int>(mates.size()));
    EXPECT_NEAR(cell(row, ParentColumn::kExpected).toDouble(), probable, 1e-4);
    Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(2);
    parents.selectRow(row);
    QTest::mouseClick(&Find<QPushButton>(*shown.window, "ParentsOffspring"), Qt::LeftButton);
    EXPECT_EQ(offspring.rowCount(), expected);
    EXPECT_EQ(all.currentText(), Text("offspring of ") + name);
  }
  EXPECT_TRUE(Find<QLabel>(*shown.window, "ParentsFamilies")
                  .text()
                  .contains(Text("Effective number of breeders: ")));
  Find<QComboBox>(*shown.window, "ParentsShow").setCurrentText(Text("without offspring"));
  EXPECT_TRUE(parents.model()->rowCount() > 0);
  for (const QString& number :
       Column(*parents.model(), static_cast<int>(ParentColumn::kOffspring))) {
    EXPECT_EQ(number, Text("0"));
  }
}

TEST_F(ResultsCertaintyTest, LociStandByTheirUse) {
  Shown shown(Flow::kNonSexed);
  shown.Run();
  const Rows shown_rows = test::ModelRows(ModelIn(*shown.window, "LociTable"));
  const auto rows = TsvRows("p/Loci.tsv");
  ASSERT_EQ(shown_rows.size(), rows.size() + 1);
  double last = 2;
  for (const QStringList& line : std::vector(shown_rows.begin() + 1, shown_rows.end())) {
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const TsvRow& each) {
      return each.at(Text("locus")) == line[0];
    });
    ASSERT_NE(row, rows.end());
    ASSERT_EQ(line.size(), static_cast<qsizetype>(row->size()));
    for (int column = 1; column < line.size(); ++column) {
      const QString expected =
          row->at(QString(shown_rows[0][column]).replace(QLatin1Char(' '), QLatin1Char('_')));
      EXPECT_NEAR(line[column].toDouble(), expected.toDouble(),
                  1e-5 + 1e-5 * std::abs(expected.toDouble()));
      EXPECT_TRUE(expected != Text("NA") || line[column] == expected);
    }
    if (line[0] != Text("ALL")) {
      EXPECT_LE(line[1].toDouble(), last);
      last = line[1].toDouble();
    }
  }
  EXPECT_EQ(shown_rows.back()[0], Text("ALL"));
}

TEST_F(ResultsCertaintyTest, AWindowWithoutProbabilitiesClaimsNone) {
  Shown shown(Flow::kNonSexed);
  shown.settings.confidence.computed = false;
  shown.Run();
  auto& table = Find<QTableView>(*shown.window, "OffspringTable");
  EXPECT_TRUE(table.isColumnHidden(Place(OffspringColumn::kCertainty)));
  EXPECT_TRUE(!table.isColumnHidden(Place(OffspringColumn::kParent1)));
  EXPECT_EQ(Find<QComboBox>(*shown.window, "OffspringShow").findText(Text("to check")), -1);
  EXPECT_TRUE(Find<QTableView>(*shown.window, "ComparisonTable")
                  .isColumnHidden(static_cast<int>(ComparisonColumn::kOther1)));
}

/// Whether an allele of the offspring stands in no parent at this row of the comparison.
bool IsInNeither(const QAbstractItemModel& model, int row) {
  const auto alleles = [&](ComparisonColumn column) {
    return model.index(row, static_cast<int>(column)).data().toString().split(QLatin1Char('/'));
  };
  const QStringList offspring = alleles(ComparisonColumn::kOffspring);
  const QStringList parents =
      alleles(ComparisonColumn::kParent1) + alleles(ComparisonColumn::kParent2);
  return offspring.size() == 2 &&
         (!parents.contains(offspring[0]) || !parents.contains(offspring[1]));
}

TEST_F(ResultsCertaintyTest, DetailsShowTheRunnerUpAndNoPraiseForAnAlleleFromNowhere) {
  Shown shown(Flow::kSexed);
  Weaken(shown);
  shown.Run();
  const auto rows = TsvRows("p/Confidence.tsv");
  const QAbstractItemModel& offspring = ModelIn(*shown.window, "OffspringTable");
  const QAbstractItemModel& model = ModelIn(*shown.window, "ComparisonTable");
  auto& verdict = Find<QLabel>(*shown.window, "ComparisonVerdict");
  int from_nowhere = 0;
  for (int row = 0; row < offspring.rowCount(); ++row) {
    Find<QTableView>(*shown.window, "OffspringTable").selectRow(row);
    const TsvRow& expected = rows[static_cast<std::size_t>(row)];
    const auto head = [&](ComparisonColumn column) {
      return model.headerData(static_cast<int>(column), Qt::Horizontal).toString();
    };
    const bool has_best = head(ComparisonColumn::kParent1) == expected.at(Text("father"));
    const QString other = expected.at(has_best ? Text("father_runner_up") : Text("father"));
    EXPECT_TRUE(head(ComparisonColumn::kOther1).startsWith(Text("or ") + other + Text(" (p ")));
    QStringList none;
    for (int locus = 0; locus < model.rowCount(); ++locus) {
      if (IsInNeither(model, locus)) {
        none += model.index(locus, 0).data().toString();
      }
    }
    from_nowhere += none.isEmpty() ? 0 : 1;
    EXPECT_EQ(
        verdict.text().endsWith(Text("in neither parent at ") + none.join(Text(", ")) + Text(".")),
        !none.isEmpty());
    EXPECT_TRUE(none.isEmpty() || !verdict.text().contains(Text("without errors")));
  }
  EXPECT_TRUE(from_nowhere > 0);
}

}  // namespace

}  // namespace kaldo

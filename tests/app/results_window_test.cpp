// SPDX-License-Identifier: GPL-3.0-or-later
// What the window of results does besides showing them.
#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>

#include "app/results/allocation_window.h"
#include "tests/app/results_support.h"

namespace kaldo {

using test::Find;
using test::ModelOf;
using test::ModelRows;
using test::Rows;

namespace {

struct Shown : test::Shown<AllocationSettings, AllocationRun, AllocationWindow> {
  explicit Shown(Flow flow)
      : test::Shown<AllocationSettings, AllocationRun, AllocationWindow>(test::ExampleAllocation,
                                                                         flow) {}
};

}  // namespace

class ResultsWindowTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void TellsWhatWasRun() {
    Shown shown(Flow::kSexed);
    shown.Run();
    const QString text = Find<QTextBrowser>(*shown.window, "SummaryText").toPlainText();
    for (const char* part :
         {"16 males and 16 females in 2 groups", "54 (", "8 of 8: Mir03Di",
          "Allocation results.xls", "Max like pairs.txt", "Run record.toml", "no possible pair"}) {
      QVERIFY2(text.contains(Text(part)), part);
    }
    QVERIFY(!text.contains(Text("Sequence results.xls")));
    const Rows table = ModelRows(ModelOf(*shown.window, "SummaryTable"));
    QCOMPARE(table.back().mid(0, 2), QStringList({Text("pairs UCM + UCF"), Text("3")}));
  }

  void ServesItsButtonsAndEsc() {
    Shown shown(Flow::kNonSexed);
    shown.Run();
    QVERIFY(shown.window->isWindow() && !shown.window->isModal());
    QCOMPARE(shown.window->windowTitle(), Text("KALDO 1.0 - %1 - results").arg(shown.project));
    auto& copy = Find<QPushButton>(*shown.window, "CopyCommand");
    QVERIFY(!copy.isEnabled());
    shown.window->SetCommand(Text("kaldo allocate --project 'a b'"));
    QTest::mouseClick(&copy, Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), Text("kaldo allocate --project 'a b'"));
    QDesktopServices::setUrlHandler(Text("file"), this, "TakeUrl");
    QTest::mouseClick(&Find<QPushButton>(*shown.window, "OpenFolder"), Qt::LeftButton);
    QDesktopServices::unsetUrlHandler(Text("file"));
    QCOMPARE(opened_, QUrl::fromLocalFile(shown.project));
    auto& table = Find<QTableView>(*shown.window, "OffspringTable");
    Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(1);
    table.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(shown.window));
    QTest::keyClick(&table, Qt::Key_Escape);
    QTRY_VERIFY(shown.window.isNull());
  }

  void GoesFromFieldToFieldByTab() {
    Shown shown(Flow::kNonSexed);
    shown.Run();
    Find<QTabWidget>(*shown.window, "Tabs").setCurrentIndex(1);
    QVERIFY(QTest::qWaitForWindowActive(shown.window));
    Find<QLineEdit>(*shown.window, "OffspringFind").setFocus();
    QStringList names;
    for (int step = 0; step < 7; ++step) {
      names += QApplication::focusWidget()->objectName();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names.join(QLatin1Char(' ')),
             Text("OffspringFind OffspringShow OffspringTable OffspringCopy OffspringExport "
                  "ComparisonTable ComparisonCopy"));
  }

  void KeepsTheRulesOfModels() {
    Shown shown(Flow::kNonSexed);
    shown.Run();
    using Mode = QAbstractItemModelTester::FailureReportingMode;
    for (const char* name : {"OffspringTable", "ComparisonTable", "AllelesTable", "SummaryTable"}) {
      const QAbstractItemModelTester tester(&ModelOf(*shown.window, name), Mode::QtTest);
      Find<QTableView>(*shown.window, "OffspringTable").selectRow(7);
      Find<QComboBox>(*shown.window, "OffspringShow").setCurrentIndex(2);
      Find<QComboBox>(*shown.window, "OffspringShow").setCurrentIndex(0);
      Find<QComboBox>(*shown.window, "AllelesLocus").setCurrentIndex(3);
    }
  }

 public Q_SLOTS:
  void TakeUrl(const QUrl& url) { opened_ = url; }

 private:
  QUrl opened_;
};

}  // namespace kaldo

QTEST_MAIN(kaldo::ResultsWindowTest)
#include "results_window_test.moc"

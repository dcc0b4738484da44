// SPDX-License-Identifier: GPL-3.0-or-later
// Charts on the screen and as files, read back without the program that wrote them.
#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QXmlStreamReader>
#include <clocale>
#include <cmath>

#include "app/results/allele_frequencies.h"
#include "app/results/chart_panel.h"
#include "app/results/chart_view.h"
#include "tests/app/results_support.h"

namespace kaldo {

using test::Rows;

namespace {

BarChart SomeBars() {
  BarChart chart;
  chart.texts = {Text("Share \"by\" class, all"), Text("class"), Text("share"), true};
  chart.categories = {Text("2 C"), Text("C + UC"), Text("say \"none\", or UC")};
  chart.series = {Text("share"),
                  {{1.0 / 3, 0.0123456789}, {std::nullopt, {}}, {0.25, std::nan("")}}};
  return chart;
}

LineChart SomeLines() {
  LineChart chart;
  chart.texts = {Text("By number of loci"), Text("loci"), Text("share"), true};
  chart.positions = {1, 2, 3};
  chart.label_title = Text("added");
  chart.labels = {Text("+ Mir03Di"), Text("+ Mir08Di"), Text("+ Mir14Di")};
  chart.series = {{Text("sides collected"), {{1.0, {}}, {0.9, {}}, {0.81, {}}}},
                  {Text("2 UC"), {{0.0, {}}, {0.01, {}}, {0.02, {}}}}};
  return chart;
}

/// The texts of an SVG file that are texts and not drawn outlines.
QStringList TextsIn(const QByteArray& svg) {
  QStringList texts;
  QXmlStreamReader reader(svg);
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement &&
        reader.name() == QLatin1String("text")) {
      texts += reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
    }
  }
  return reader.hasError() ? QStringList() : texts;
}

QPalette DarkPalette() { return {QColor(53, 53, 53), QColor(53, 53, 53)}; }

/// How many pixels of a picture are of one colour.
int Count(const QImage& picture, const QColor& colour) {
  int pixels = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      pixels += picture.pixelColor(x, y) == colour ? 1 : 0;
    }
  }
  return pixels;
}

/// Answers the next message box and keeps its text.
QString TextOfNextBox(const std::function<void()>& action) {
  QString text;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      text = box->text();
      QTest::keyClick(box, Qt::Key_Return);
    }
  });
  timer.start(10);
  action();
  return text;
}

}  // namespace

class ChartFilesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    QApplication::setPalette(QApplication::style()->standardPalette());
    QLocale::setDefault(QLocale::c());
  }

  void KeepsTextsInSvg() {
    ChartView view;
    view.SetChart(SomeLines());
    const QString path = folder_.filePath(Text("chart.svg"));
    QVERIFY(view.SaveChart(path));
    const QStringList texts = TextsIn(test::ReadFile(path));
    for (const char* text : {"By number of loci", "loci", "share", "+ Mir03Di", "+ Mir14Di",
                             "sides collected", "2 UC", "0.2", "0.8"}) {
      QVERIFY2(texts.contains(Text(text)), text);
    }
    QVERIFY(!test::ReadFile(path).contains("<image"));
  }

  void WritesPicturesForPaperWhateverTheScreen() {
    QApplication::setPalette(DarkPalette());
    ChartView view;
    view.setPalette(DarkPalette());
    view.SetChart(SomeBars());
    const QString path = folder_.filePath(Text("chart.PNG"));
    QVERIFY(view.SaveChart(path));
    const QImage picture(path);
    QCOMPARE(qRound(picture.dotsPerMeterX() * 0.0254), 300);
    QCOMPARE(qRound(picture.dotsPerMeterY() * 0.0254), 300);
    QVERIFY(picture.width() > 2000);
    QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::white));
    const int all = picture.width() * picture.height();
    QVERIFY(Count(picture, Qt::white) > all / 2);
    QVERIFY(Count(picture, QColor(0, 114, 178)) > all / 50);  // the bars
    QVERIFY(Count(picture, Qt::black) > 1000);                // axes and texts

    const QString pdf = folder_.filePath(Text("chart.pdf"));
    QVERIFY(view.SaveChart(pdf));
    QVERIFY(test::ReadFile(pdf).startsWith("%PDF"));
    // 720 x 450 units of 1/96 inch are 540 x 337.5 points.
    QVERIFY(test::ReadFile(pdf).contains("/MediaBox [0 0 540"));
  }

  void FollowsThePaletteOfTheScreen() {
    ChartView view;
    view.SetChart(SomeBars());
    view.resize(600, 400);
    view.show();
    QCOMPARE(view.grab().toImage().pixelColor(3, 3), view.palette().color(QPalette::Base));
    QVERIFY(view.palette().color(QPalette::Base).lightness() > 200);
    view.setPalette(DarkPalette());
    QCoreApplication::processEvents();  // the chart is drawn anew when there is time
    const QImage dark = view.grab().toImage();
    QCOMPARE(dark.pixelColor(3, 3), DarkPalette().color(QPalette::Base));
    QVERIFY(dark.pixelColor(3, 3).lightness() < 100);
    QVERIFY(Count(dark, QColor(86, 180, 233)) > 1000);
    QVERIFY(Count(dark, Qt::white) > 200);  // axes and texts
  }

  void WritesTheNumbersInFull() {
    ChartView view;
    view.SetChart(SomeBars());
    const QString path = folder_.filePath(Text("chart.csv"));
    QVERIFY(view.SaveChart(path));
    const Rows rows = test::ParseCsv(test::ReadFile(path));
    QCOMPARE(rows[0], QStringList({Text("class"), Text("share"), Text("share sd")}));
    QCOMPARE(rows[1][1].toDouble(), 1.0 / 3);
    QCOMPARE(rows[1][2].toDouble(), 0.0123456789);
    QCOMPARE(rows[2], QStringList({Text("C + UC"), Text("NA"), Text("NA")}));
    QCOMPARE(rows[3], QStringList({Text("say \"none\", or UC"), Text("0.25"), Text("nan")}));
    QCOMPARE(rows.size(), std::size_t{4});
  }

  void KeepsAnEarlierFileWhenItCannotWrite() {
    ChartView view;
    view.SetChart(SomeBars());
    const QString nowhere = folder_.filePath(Text("no such folder/chart.svg"));
    bool saved = true;
    const QString text = TextOfNextBox([&] { saved = view.SaveChart(nowhere); });
    QVERIFY(!saved);
    QVERIFY2(text.contains(nowhere) && text.contains(Text("cannot be written: ")),
             qPrintable(text));
    QVERIFY(!text.endsWith(Text(": ")));
    const QString unknown = TextOfNextBox([&] { saved = view.SaveChart(Text("chart.docx")); });
    QVERIFY(!saved && unknown.contains(Text("chart.docx")));
    QVERIFY(!QFile::exists(Text("chart.docx")));
  }

  void SavesThroughItsDialog() {
    ChartPanel panel(Text("Figures"), Qt::Horizontal, folder_.path(), nullptr);
    panel.Show(SomeLines());
    panel.show();
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog != nullptr && dialog->objectName() == Text("SaveDialog")) {
        QTest::keyClick(dialog, Qt::Key_Return);
      }
    });
    timer.start(20);
    QTest::mouseClick(&test::Find<QPushButton>(panel, "FiguresSave"), Qt::LeftButton);
    QVERIFY(TextsIn(test::ReadFile(folder_.filePath(Text("figures.svg")))).contains(Text("2 UC")));
  }

  void WritesPointsInACommaCountry() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    QCOMPARE(QLocale().toString(0.5), Text("0,5"));
    ChartPanel panel(Text("Figures"), Qt::Horizontal, folder_.path(), nullptr);
    panel.Show(SomeBars());
    const auto& table = test::Find<QTableView>(panel, "FiguresTable");
    QCOMPARE(table.model()->index(0, 1).data().toString(), Text("0.333333"));
    auto& view = test::Find<ChartView>(panel, "FiguresChart");
    const QString path = folder_.filePath(Text("german"));
    QVERIFY(view.SaveChart(path + Text(".svg")) && view.SaveChart(path + Text(".csv")));
    const QStringList texts = TextsIn(test::ReadFile(path + Text(".svg")));
    QVERIFY(texts.contains(Text("0.2")) && texts.contains(Text("0.333")));
    QVERIFY(!texts.contains(Text("0,2")));
    QCOMPARE(test::ParseCsv(test::ReadFile(path + Text(".csv")))[1][1].toDouble(), 1.0 / 3);
    std::setlocale(LC_NUMERIC, "C");
  }

  void LeavesOutWhatWasNotTyped() {
    GenotypeTable table(1);
    for (const auto& [first, second] : {std::pair{150U, 154U}, {0U, 0U}, {154U, 98U}}) {
      const Slot slot = table.AddIndividual("X");
      table.Genotype(LocusIndex{0}, slot) = {AlleleSize{first}, AlleleSize{second}, {}, {}};
    }
    const AlleleFrequencies found = CountAlleles(table, LocusIndex{0});
    QCOMPARE(found.copies, std::size_t{4});
    QCOMPARE(found.alleles.size(), std::size_t{3});
    QCOMPARE(found.alleles[0].size.Value(), 98U);
    QCOMPARE(found.Frequency(2), 0.5);
    QCOMPARE(CountAlleles(GenotypeTable(1), LocusIndex{0}).copies, std::size_t{0});
  }

  void DrawsClassesWithoutValues() {
    SpreadChart empty;
    empty.texts = {Text("Nothing"), Text("iteration"), Text("correct"), false};
    ChartView view;
    view.SetChart(empty);
    const QString path = folder_.filePath(Text("empty.svg"));
    QVERIFY(view.SaveChart(path));
    QVERIFY(TextsIn(test::ReadFile(path)).contains(Text("NA")));
    SpreadChart one = empty;
    one.values = {0.5};
    one.mean = 0.5;
    one.deviation = std::nan("");
    view.SetChart(one);
    QVERIFY(view.SaveChart(path));
    QVERIFY(TextsIn(test::ReadFile(path)).contains(Text("mean")));
    QVERIFY(!TextsIn(test::ReadFile(path)).contains(Text("mean + sd")));
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace kaldo

QTEST_MAIN(kaldo::ChartFilesTest)
#include "chart_files_test.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// Charts on the screen and as files, read back without the program that wrote them.
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QXmlStreamReader>
#include <clocale>
#include <cmath>

#include "app/results/chart_panel.h"
#include "app/results/chart_view.h"
#include "app/support/results_test.h"

namespace kaldo {

using test::Column;
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
QStringList TextsIn(const std::string& path) {
  QStringList texts;
  QXmlStreamReader reader(QByteArray::fromStdString(test::ReadFile(path)));
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

class ChartFilesTest : public test::WorkplaceTest {
 protected:
  ChartFilesTest() {
    QApplication::setPalette(QApplication::style()->standardPalette());
    QLocale::setDefault(QLocale::c());
  }
};

TEST_F(ChartFilesTest, SavesTextsInSvgThroughItsDialog) {
  ChartPanel panel(Text("Figures"), Qt::Horizontal, Text("."), nullptr);
  panel.Show(SomeLines());
  panel.show();
  Script script;
  script.Click("FiguresSave").Await("SaveDialog").Press(Qt::Key_Return);
  EXPECT_TRUE(script.Run([&] { panel.activateWindow(); }));
  const QStringList texts = TextsIn("figures.svg");
  for (const char* text : {"By number of loci", "loci", "share", "+ Mir03Di", "+ Mir14Di",
                           "sides collected", "2 UC", "0.2", "0.8"}) {
    EXPECT_TRUE(texts.contains(Text(text))) << text;
  }
  EXPECT_EQ(test::ReadFile("figures.svg").find("<image"), std::string::npos);
}

TEST_F(ChartFilesTest, WritesPicturesForPaperWhateverTheScreen) {
  ChartView view;
  view.setPalette(DarkPalette());
  view.SetChart(SomeBars());
  ASSERT_TRUE(view.SaveChart(Text("chart.PNG")));
  const QImage picture(Text("chart.PNG"));
  EXPECT_EQ(qRound(picture.dotsPerMeterX() * 0.0254), 300);
  EXPECT_EQ(qRound(picture.dotsPerMeterY() * 0.0254), 300);
  EXPECT_GT(picture.width(), 2000);
  EXPECT_EQ(picture.pixelColor(2, 2), QColor(Qt::white));
  const int all = picture.width() * picture.height();
  EXPECT_GT(Count(picture, Qt::white), all / 2);
  EXPECT_GT(Count(picture, QColor(0, 114, 178)), all / 50);  // the bars
  EXPECT_GT(Count(picture, Qt::black), 1000);                // axes and texts

  ASSERT_TRUE(view.SaveChart(Text("chart.pdf")));
  const std::string pdf = test::ReadFile("chart.pdf");
  EXPECT_TRUE(pdf.starts_with("%PDF"));
  // 720 x 450 units of 1/96 inch are 540 x 337.5 points.
  EXPECT_NE(pdf.find("/MediaBox [0 0 540"), std::string::npos);
}

TEST_F(ChartFilesTest, HasTheSizeThatIsChosenInMillimetres) {
  ChartPanel panel(Text("Figures"), Qt::Horizontal, Text("."), nullptr);
  panel.Show(SomeBars());
  panel.show();
  Script script;
  script.Await("ChartWidth").Do([](QWidget& dialog) {
    test::Find<QSpinBox>(dialog, "ChartWidth").setValue(254);
    test::Find<QSpinBox>(dialog, "ChartHeight").setValue(127);
  });
  script.Press(Qt::Key_Return);
  EXPECT_TRUE(script.Run([&] { test::Find<QPushButton>(panel, "FiguresSize").click(); }));
  test::Find<QPushButton>(panel, "FiguresPicture").click();
  // 10 x 5 inches of 300 dots each.
  EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(3000, 1500));
  // A tip tells the numbers of the bar that the mouse is over.
  EXPECT_EQ(Bytes(test::Find<ChartView>(panel, "FiguresChart").ValuesAt(0)),
            "class: 2 C\nshare: 0.333333\nshare sd: 0.0123457");
}

TEST_F(ChartFilesTest, FollowsThePaletteOfTheScreen) {
  ChartView view;
  view.SetChart(SomeBars());
  view.resize(600, 400);
  view.show();
  EXPECT_EQ(view.grab().toImage().pixelColor(3, 3), view.palette().color(QPalette::Base));
  view.setPalette(DarkPalette());
  QCoreApplication::processEvents();  // the chart is drawn anew when there is time
  const QImage dark = view.grab().toImage();
  EXPECT_EQ(dark.pixelColor(3, 3), DarkPalette().color(QPalette::Base));
  EXPECT_LT(dark.pixelColor(3, 3).lightness(), 100);
  EXPECT_GT(Count(dark, QColor(86, 180, 233)), 1000);
  EXPECT_GT(Count(dark, Qt::white), 200);  // axes and texts
}

TEST_F(ChartFilesTest, WritesTheNumbersInFullAlsoInACommaCountry) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
  ChartPanel panel(Text("Figures"), Qt::Horizontal, Text("."), nullptr);
  BarChart chart = SomeBars();
  chart.categories[0] = Text("1-2");  // which a spreadsheet takes for a date
  panel.Show(chart);
  EXPECT_EQ(Column(*test::Find<QTableView>(panel, "FiguresTable").model(), 1)[0], Text("0.333333"));
  auto& view = test::Find<ChartView>(panel, "FiguresChart");
  EXPECT_TRUE(view.SaveChart(Text("chart.svg")) && view.SaveChart(Text("chart.csv")));
  const QStringList texts = TextsIn("chart.svg");
  EXPECT_TRUE(texts.contains(Text("0.2")) && !texts.contains(Text("0,2")));
  const Rows rows = test::ParseCsv(test::ReadFile("chart.csv"));
  std::setlocale(LC_NUMERIC, "C");
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[0], QStringList({Text("class"), Text("share"), Text("share sd")}));
  EXPECT_EQ(rows[1][0], Text("'1-2"));
  EXPECT_EQ(rows[1][1].toDouble(), 1.0 / 3);
  EXPECT_EQ(rows[1][2].toDouble(), 0.0123456789);
  EXPECT_EQ(rows[2], QStringList({Text("C + UC"), Text("NA"), Text("NA")}));
  EXPECT_EQ(rows[3], QStringList({Text("say \"none\", or UC"), Text("0.25"), Text("nan")}));
}

TEST_F(ChartFilesTest, TellsWhatItCannotWrite) {
  ChartView view;
  view.SetChart(SomeBars());
  for (const char* path : {"no such folder/chart.svg", "chart.docx"}) {
    Script script;
    script.Answer();
    EXPECT_TRUE(script.Run([&] { EXPECT_FALSE(view.SaveChart(Text(path))); }));
    EXPECT_TRUE(script.Messages()[0].contains(Text(path))) << Bytes(script.Messages()[0]);
    EXPECT_FALSE(script.Messages()[0].endsWith(Text(": "))) << "the reason is missing";
    EXPECT_FALSE(QFile::exists(Text(path)));
  }
}

TEST_F(ChartFilesTest, DrawsClassesWithoutValues) {
  SpreadChart chart;
  chart.texts = {Text("Nothing"), Text("iteration"), Text("correct"), false};
  ChartView view;
  view.SetChart(chart);
  EXPECT_TRUE(view.SaveChart(Text("empty.svg")));
  EXPECT_TRUE(TextsIn("empty.svg").contains(Text("NA")));
  chart.values = {0.5};
  chart.mean = 0.5;
  chart.deviation = std::nan("");
  view.SetChart(chart);
  EXPECT_TRUE(view.SaveChart(Text("one.svg")));
  EXPECT_TRUE(TextsIn("one.svg").contains(Text("mean")));
  EXPECT_FALSE(TextsIn("one.svg").contains(Text("mean + sd")));
}

}  // namespace
}  // namespace kaldo

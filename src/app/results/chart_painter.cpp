// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <qcustomplot.h>
#include <span>
#include <utility>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/chart_files.h"
#include "app/results/chart_layout.h"
#include "app/results/data_table.h"

namespace kaldo {

namespace {

constexpr double kShareAxisBegin = -0.03;  ///< of lines, for whole marks at 0
constexpr double kShareAxisEnd = 1.05;     ///< and at 1
constexpr double kRoomForNumbers = 1.12;   ///< above the highest bar
constexpr double kBarWidth = 0.7;          ///< of the distance between two bars
constexpr std::size_t kMostNumberedBars = 9;
constexpr std::size_t kMostLevelLabels = 6;
constexpr double kMarkerSize = 8;
constexpr int kLevelGap = 6;
constexpr int kLegendSign = 60;  ///< a piece of the line with its mark, and the gaps

/// Puts one chart onto a plot.
class ChartPainter {
 public:
  ChartPainter(QCustomPlot& plot, const ChartTheme& theme, const QFont& font)
      : plot_(plot), theme_(theme), font_(font) {
    plot_.clearPlottables();
    plot_.clearItems();
    plot_.plotLayout()->clear();
    plot_.plotLayout()->addElement(1, 0, new QCPAxisRect(&plot_));
    QLocale numbers = QLocale::c();
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    plot_.setLocale(numbers);
    plot_.setBackground(QBrush(theme.background));
  }

  /// `width` is what the title has to fit into.
  void Paint(const Chart& chart, int width) {
    PaintTexts(TextsOf(chart), width);
    std::visit([this](const auto& any) { PaintData(any); }, chart);
    PaintNote(TextsOf(chart).legend);
    if (TextsOf(chart).shares) {
      const bool bars = std::holds_alternative<BarChart>(chart);
      Values()->setRange(bars ? 0 : kShareAxisBegin,
                         bars ? std::max(kRoomForNumbers, Values()->range().upper) : kShareAxisEnd);
    }
  }

 private:
  QCPAxis* Places() { return plot_.axisRect()->axis(QCPAxis::atBottom); }
  QCPAxis* Values() { return plot_.axisRect()->axis(QCPAxis::atLeft); }

  const QColor& Colour(std::size_t series) const {
    return theme_.series[series % theme_.series.size()];
  }

  void PaintTexts(const ChartTexts& texts, int width) {
    width_ = width;
    QFont bold = font_;
    bold.setBold(true);
    auto* title = new QCPTextElement(&plot_, Folded(texts.title, QFontMetrics(bold), width), bold);
    title->setTextColor(theme_.text);
    plot_.plotLayout()->addElement(0, 0, title);
    for (QCPAxis* axis : {Places(), Values()}) {
      axis->setLayer(Text("axes"));
      axis->grid()->setLayer(Text("grid"));
      axis->setBasePen(QPen(theme_.text));
      axis->setTickPen(QPen(theme_.text));
      axis->setSubTickPen(QPen(theme_.text));
      axis->setLabelColor(theme_.text);
      axis->setTickLabelColor(theme_.text);
      axis->setLabelFont(font_);
      axis->setTickLabelFont(font_);
      axis->grid()->setPen(QPen(theme_.grid));
      axis->grid()->setZeroLinePen(QPen(theme_.grid));
    }
    Places()->setLabel(texts.x_title);
    Places()->grid()->setVisible(false);
    Values()->setLabel(texts.y_title);
  }

  /// A text below everything else.
  void PaintNote(const QString& text) {
    if (text.isEmpty()) {
      return;
    }
    auto* note = new QCPTextElement(&plot_, Folded(text, QFontMetrics(font_), width_), font_);
    note->setTextColor(theme_.text);
    plot_.plotLayout()->addElement(plot_.plotLayout()->rowCount(), 0, note);
  }

  /// Texts below places; many of them stand aslant.
  void LabelPlaces(std::span<const double> places, std::span<const QString> labels) {
    const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
    for (std::size_t k = 0; k < places.size(); ++k) {
      ticker->addTick(places[k], labels[k]);
    }
    Places()->setTicker(ticker);
    Places()->setSubTicks(false);
    Places()->setTickLength(0, 4);
    if (places.size() > kMostLevelLabels) {
      Places()->setTickLabelRotation(-60);
    }
  }

  /// Ticks at whole numbers only: there is no half locus and no half iteration.
  void CountPlaces() {
    const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
    ticker->setTickStep(1);
    ticker->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
    Places()->setTicker(ticker);
    Places()->setSubTicks(false);
    Places()->setNumberFormat(Text("f"));
    Places()->setNumberPrecision(0);
  }

  void FitPlaces(std::span<const double> places, double margin) {
    if (!places.empty()) {
      Places()->setRange(places.front() - margin, places.back() + margin);
    }
  }

  void AddErrorBars(QCPAbstractPlottable* of, const QVector<double>& deviations) {
    auto* bars = new QCPErrorBars(Places(), Values());
    bars->removeFromLegend();
    bars->setDataPlottable(of);
    bars->setData(deviations);
    bars->setPen(QPen(theme_.text));
    bars->setSymbolGap(0);
  }

  void PaintNumber(double place, double value, const QString& text) {
    auto* item = new QCPItemText(&plot_);
    item->position->setAxes(Places(), Values());
    item->position->setCoords(place, value);
    item->setPositionAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    item->setText(text);
    item->setFont(font_);
    item->setColor(theme_.text);
    item->setPadding(QMargins(0, 0, 0, 3));
    item->setClipToAxisRect(false);  // in a low chart a number rises above the axes
  }

  void PaintData(const BarChart& chart);
  void PaintData(const LineChart& chart);
  void PaintData(const SpreadChart& chart);
  void PaintLine(const LineChart& chart, std::size_t number);
  void PaintLevel(double value, Qt::PenStyle style, const QString& text);
  void PlaceLegend(const QStringList& names);
  void PaintHatched(const BarChart& chart, QCPBars& settled);

  QCustomPlot& plot_;
  const ChartTheme& theme_;
  QFont font_;
  int width_ = 0;
};

/// A deviation that is not a number, or not known, is not drawn.
double DrawnDeviation(const ChartValue& value) {
  return value.value ? value.deviation.value_or(qQNaN()) : qQNaN();
}

/// Takes the part that is not settled off the bars and puts it on top of them.
void ChartPainter::PaintHatched(const BarChart& chart, QCPBars& settled) {
  auto* hatched = new QCPBars(Places(), Values());
  hatched->setName(chart.hatched->name);
  hatched->setWidth(settled.width());
  hatched->setPen(settled.pen());
  hatched->setBrush(QBrush(Colour(0), Qt::BDiagPattern));
  hatched->moveAbove(&settled);
  const std::vector<double> places = PlacesOf(chart);
  QVector<double> below;
  QVector<double> above;
  for (std::size_t k = 0; k < places.size(); ++k) {
    above += chart.hatched->values[k].value.value_or(0);
    below += chart.series.values[k].value.value_or(0) - above.back();
  }
  const QVector<double> keys(places.begin(), places.end());
  settled.setData(keys, below, true);
  hatched->setData(keys, above, true);
}

void ChartPainter::PaintData(const BarChart& chart) {
  const std::vector<double> places = PlacesOf(chart);
  const double step = SmallestStep(places);
  if (chart.hatched) {
    PlaceLegend({chart.settled_name, chart.hatched->name});
  }
  auto* bars = new QCPBars(Places(), Values());
  bars->setWidth(step * kBarWidth);
  bars->setPen(QPen(Colour(0)));
  bars->setBrush(QBrush(Colour(0)));
  QVector<double> heights;
  QVector<double> deviations;
  double highest = 0;
  for (const ChartValue& value : chart.series.values) {
    heights += value.value.value_or(0);
    deviations += DrawnDeviation(value);
    const double top = std::isnan(deviations.back()) ? 0 : deviations.back();
    highest = std::max(highest, heights.back() + top);
  }
  bars->setData(QVector<double>(places.begin(), places.end()), heights, true);
  AddErrorBars(bars, deviations);
  if (chart.hatched) {
    bars->setName(chart.settled_name);
    PaintHatched(chart, *bars);
  }
  Values()->setRange(0, highest > 0 ? highest * kRoomForNumbers : 1);
  FitPlaces(places, step);
  if (chart.positions.empty()) {
    LabelPlaces(places, chart.categories);
    FitPlaces(places, kBarWidth);
  } else {
    CountPlaces();
  }
  for (std::size_t k = 0; places.size() <= kMostNumberedBars && k < places.size(); ++k) {
    const auto place = static_cast<qsizetype>(k);
    const double top = std::isnan(deviations[place]) ? 0 : deviations[place];
    const ChartValue& value = chart.series.values[k];
    PaintNumber(places[k], heights[place] + top,
                value.value ? QString::number(*value.value, 'f', 3) : ShortNumber(std::nullopt));
  }
}

void ChartPainter::PaintLine(const LineChart& chart, std::size_t number) {
  using Marker = QCPScatterStyle;
  static constexpr std::array<Marker::ScatterShape, 6> kMarkers = {
      Marker::ssDisc,    Marker::ssSquare,           Marker::ssTriangle,
      Marker::ssDiamond, Marker::ssTriangleInverted, Marker::ssCross};
  static constexpr std::array<Qt::PenStyle, 4> kLines = {Qt::SolidLine, Qt::DashLine,
                                                         Qt::DashDotLine, Qt::DotLine};
  const ChartSeries& series = chart.series[number];
  auto* line = plot_.addGraph(Places(), Values());
  line->setName(series.name);
  line->setPen(QPen(Colour(number), 2, kLines.at(number % kLines.size())));
  line->setScatterStyle(QCPScatterStyle(kMarkers.at(number % kMarkers.size()),
                                        QPen(Colour(number), 2), QBrush(theme_.background),
                                        kMarkerSize));
  QVector<double> values;
  QVector<double> deviations;
  for (const ChartValue& value : series.values) {
    values += value.value.value_or(qQNaN());
    deviations += DrawnDeviation(value);
  }
  line->setData(QVector<double>(chart.positions.begin(), chart.positions.end()), values, true);
  AddErrorBars(line, deviations);
}

void ChartPainter::PlaceLegend(const QStringList& names) {
  int widest = 0;
  for (const QString& name : names) {
    widest = std::max(widest, QFontMetrics(font_).horizontalAdvance(name));
  }
  plot_.legend = new QCPLegend;
  plot_.plotLayout()->addElement(2, 0, plot_.legend);
  plot_.legend->setLayer(Text("legend"));
  plot_.legend->setFillOrder(QCPLayoutGrid::foColumnsFirst);
  plot_.legend->setWrap(std::clamp(width_ / (widest + kLegendSign), 1, 4));
  plot_.legend->setFont(font_);
  plot_.legend->setTextColor(theme_.text);
  plot_.legend->setBrush(Qt::NoBrush);
  plot_.legend->setBorderPen(Qt::NoPen);
  plot_.plotLayout()->setRowStretchFactor(2, 0.001);
}

void ChartPainter::PaintData(const LineChart& chart) {
  if (chart.series.size() > 1) {
    QStringList names;
    for (const ChartSeries& series : chart.series) {
      names += series.name;
    }
    PlaceLegend(names);
  }
  for (std::size_t number = 0; number < chart.series.size(); ++number) {
    PaintLine(chart, number);
  }
  Values()->rescale();
  FitPlaces(chart.positions, kBarWidth);
  if (chart.labels.empty()) {
    CountPlaces();
  } else {
    LabelPlaces(chart.positions, chart.labels);
  }
}

/// A level line with its text behind its right end, where no point is.
void ChartPainter::PaintLevel(double value, Qt::PenStyle style, const QString& text) {
  auto* line = new QCPItemStraightLine(&plot_);
  for (QCPItemPosition* point : {line->point1, line->point2}) {
    point->setAxes(Places(), Values());
  }
  line->point1->setCoords(0, value);
  line->point2->setCoords(1, value);
  line->setPen(QPen(Colour(1), 2, style));
  auto* label = new QCPItemText(&plot_);
  label->position->setTypeX(QCPItemPosition::ptAxisRectRatio);
  label->position->setAxes(Places(), Values());
  label->position->setCoords(1, value);
  label->setPositionAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  label->setPadding(QMargins(kLevelGap, 0, 0, 0));
  label->setText(text);
  label->setFont(font_);
  label->setColor(theme_.text);
  label->setClipToAxisRect(false);
}

void ChartPainter::PaintData(const SpreadChart& chart) {
  CountPlaces();
  plot_.axisRect()->setMinimumMargins(
      QMargins(0, 0, QFontMetrics(font_).horizontalAdvance(Tr("mean + sd")) + 2 * kLevelGap, 0));
  const auto count = static_cast<double>(chart.values.size());
  Places()->setRange(0, count + 1);
  if (chart.values.empty()) {
    PaintNumber(0.5, 0.5, ShortNumber(std::nullopt));
    return;
  }
  auto* points = plot_.addGraph(Places(), Values());
  points->setLineStyle(QCPGraph::lsNone);
  points->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, Colour(0), Colour(0),
                                          count > 200 ? kMarkerSize / 2 : kMarkerSize));
  QVector<double> iterations;
  for (std::size_t k = 1; k <= chart.values.size(); ++k) {
    iterations += static_cast<double>(k);
  }
  points->setData(iterations, QVector<double>(chart.values.begin(), chart.values.end()), true);
  const auto [low, high] = std::minmax_element(chart.values.begin(), chart.values.end());
  const double deviation = std::isnan(chart.deviation) ? 0 : chart.deviation;
  const double lowest = std::min(*low, chart.mean - deviation);
  const double highest = std::max(*high, chart.mean + deviation);
  const double margin = std::max((highest - lowest) / 4, 0.01);
  Values()->setRange(lowest - margin, highest + margin);
  PaintLevel(chart.mean, Qt::SolidLine, Tr("mean"));
  if (deviation > 0) {
    PaintLevel(chart.mean + deviation, Qt::DashLine, Tr("mean + sd"));
    PaintLevel(chart.mean - deviation, Qt::DashLine, Tr("mean - sd"));
  }
}

/// Sizes in pixels: on paper a point is another part of a pixel than on the screen.
QFont ChartFont() {
  QFont font;
  font.setPixelSize(13);
  return font;
}

}  // namespace

void PaintOnPlot(const Chart& chart, const ChartTheme& theme, const QFont& font, int width,
                 QCustomPlot& plot) {
  constexpr int kTitleMargin = 20;
  ChartPainter(plot, theme, font).Paint(chart, width - kTitleMargin);
}

void PaintChart(const Chart& chart, const ChartTheme& theme, QSize size, double scale,
                QPaintDevice& device) {
  QCustomPlot plot;
  PaintOnPlot(chart, theme, ChartFont(), size.width(), plot);
  QCPPainter painter(&device);
  // Nothing may go through a cached picture, or texts would end up as dots.
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNoCaching);
  painter.scale(scale, scale);
  painter.fillRect(QRect(QPoint(0, 0), size), theme.background);
  plot.toPainter(&painter, size.width(), size.height());
}

}  // namespace kaldo

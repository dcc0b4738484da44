// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_view.h"

#include <QEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <qcustomplot.h>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/chart_layout.h"
#include "app/results/chart_painter.h"

namespace kaldo {

ChartView::ChartView(QWidget* parent) : QWidget(parent), plot_(new QCustomPlot(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(plot_);
  plot_->setFocusPolicy(Qt::NoFocus);
  connect(plot_, &QCustomPlot::mouseMove, this, [this](QMouseEvent* event) { TellValues(*event); });
}

void ChartView::TellValues(const QMouseEvent& event) {
  const std::vector<double> places = PlacesOf(chart_);
  const QPoint at = event.position().toPoint();
  if (places.empty() || !plot_->axisRect()->rect().contains(at)) {
    QToolTip::hideText();
    return;
  }
  const double here = plot_->axisRect()->axis(QCPAxis::atBottom)->pixelToCoord(at.x());
  const auto nearest = std::min_element(places.begin(), places.end(), [here](double a, double b) {
    return std::abs(a - here) < std::abs(b - here);
  });
  QToolTip::showText(event.globalPosition().toPoint(),
                     TipText(ValuesAt(static_cast<std::size_t>(nearest - places.begin()))), plot_);
}

QString ChartView::ValuesAt(std::size_t place) const {
  const DataTable table = TableOf(chart_);
  QStringList lines;
  if (place < table.rows.size()) {
    const QStringList& cells = table.rows[place];
    for (qsizetype k = 0; k < cells.size(); ++k) {
      bool is_number = false;
      const double value = QLocale::c().toDouble(cells[k], &is_number);
      lines += table.heads.value(k) + Text(": ") + (is_number ? ShortNumber(value) : cells[k]);
    }
  }
  return lines.join(QLatin1Char('\n'));
}

Figure ChartView::ShownFigure() const {
  return {TextsOf(chart_).title,
          [chart = chart_](QSize size, double scale, QPaintDevice& device) {
            PaintChart(chart, LightTheme(), size, scale, device);
          },
          [chart = chart_] { return TableOf(chart); }};
}

bool ChartView::SaveChart(const QString& path) {
  return SaveFigure(window(), ShownFigure(), path, ChartSize(chart_));
}

void ChartView::SetChart(const Chart& chart) {
  chart_ = chart;
  setAccessibleName(TextsOf(chart).title);
  setAccessibleDescription(Tr("Chart; its numbers stand in the table beside it."));
  Draw();
}

void ChartView::Draw() {
  PaintOnPlot(chart_, ThemeOf(palette()), font(), width(), *plot_);
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

// Title and legend may take two lines each: the page is scrolled rather than the bars be lost.
QSize ChartView::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 40, fontMetrics().lineSpacing() * 18};
}

QSize ChartView::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 80, fontMetrics().lineSpacing() * 24};
}

void ChartView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Draw();
}

void ChartView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
    Draw();
  }
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/chart_data.h"
#include "app/results/chart_theme.h"

class QCustomPlot;
class QPaintDevice;

namespace kaldo {

/// Shows one chart in the colours of the screen.
class ChartView : public QWidget {
 public:
  explicit ChartView(QWidget* parent = nullptr);

  /// Draws another chart from here on.
  void SetChart(const Chart& chart);

  const Chart& Shown() const { return chart_; }

  /// Saves the chart by the ending of `path`: .svg, .pdf, .png, or .csv for its numbers. Tells the
  /// user and returns false when that cannot be done; an earlier file then stays as it was.
  bool SaveChart(const QString& path);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Draw();

  Chart chart_;
  QCustomPlot* plot_ = nullptr;
};

/// Paints a chart of its natural size, enlarged by `scale`, onto paper or a picture.
void PaintChart(const Chart& chart, const ChartTheme& theme, double scale, QPaintDevice& device);

}  // namespace kaldo

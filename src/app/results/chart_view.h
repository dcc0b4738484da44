// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/chart_data.h"
#include "app/results/chart_theme.h"

class QCustomPlot;
class QMouseEvent;
class QPaintDevice;

namespace kaldo {

/// Shows one chart in the colours of the screen.
class ChartView : public QWidget {
 public:
  explicit ChartView(QWidget* parent = nullptr);

  /// Draws another chart from here on.
  void SetChart(const Chart& chart);

  const Chart& Shown() const { return chart_; }

  /// Saves the chart by the ending of `path`: .svg, .pdf, .png, or .csv for its numbers; `wanted`
  /// is in units of 1/96 inch, the natural one unless told. Tells the user and returns false when
  /// that cannot be done; an earlier file then stays as it was.
  bool SaveChart(const QString& path, std::optional<QSize> wanted = std::nullopt);

  /// Puts the chart on the clipboard as the picture that would be saved.
  void CopyPicture(QSize size) const;

  /// What a tip tells at a place of the chart: the numbers of that row of its table.
  QString ValuesAt(std::size_t place) const;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Draw();
  void TellValues(const QMouseEvent& event);

  Chart chart_;
  QCustomPlot* plot_ = nullptr;
};

/// Paints a chart of that size, enlarged by `scale`, onto paper or a picture.
void PaintChart(const Chart& chart, const ChartTheme& theme, QSize size, double scale,
                QPaintDevice& device);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/chart_data.h"
#include "app/results/chart_files.h"
#include "app/results/chart_theme.h"

class QCustomPlot;
class QMouseEvent;

namespace kaldo {

/// Shows one chart in the colours of the screen.
class ChartView : public QWidget {
 public:
  explicit ChartView(QWidget* parent = nullptr);

  /// Draws another chart from here on.
  void SetChart(const Chart& chart);

  const Chart& Shown() const { return chart_; }

  /// The chart for a file. It outlives this view.
  Figure ShownFigure() const;

  /// Saves it in its natural size, see SaveFigure().
  bool SaveChart(const QString& path);

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

}  // namespace kaldo

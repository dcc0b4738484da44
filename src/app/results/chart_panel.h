// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/chart_data.h"
#include "app/results/figure_saver.h"

class QBoxLayout;

namespace kaldo {

class ChartView;
class DataTableModel;
class ResultTable;

/// A chart with its numbers as a table, and buttons to save or copy the one and copy the other.
///
/// Object names, with `name` as given: "<name>Chart", "<name>Table", "<name>Copy", and those of a
/// FigureSaver.
class ChartPanel : public QWidget {
 public:
  /// The table stands beside (Qt::Horizontal) or below the chart. `folder` is where files are
  /// suggested to go.
  ChartPanel(const QString& name, Qt::Orientation orientation, QString folder, QWidget* parent);

  /// The table shows the numbers of the chart.
  void Show(const Chart& chart);

  /// The table tells more than the chart.
  void Show(const Chart& chart, const DataTable& table);

 private:
  void AddButtons(QBoxLayout& layout, const QString& name);

  ChartView* chart_;
  DataTableModel* model_;
  ResultTable* table_;
  FigureSaver saver_;
};

}  // namespace kaldo

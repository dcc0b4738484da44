// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_panel.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "app/base/text.h"
#include "app/results/chart_view.h"
#include "app/results/result_table.h"
#include "app/results/save_file.h"

namespace kaldo {

namespace {

constexpr int kWidestTable = 40;  ///< in characters; a wider one scrolls where room is scarce

/// The numbers of a chart as people read them: six digits, like the reports.
DataTable ShortTableOf(const Chart& chart) {
  DataTable table = TableOf(chart);
  for (QStringList& row : table.rows) {
    for (QString& cell : row) {
      bool is_number = false;
      const double value = QLocale::c().toDouble(cell, &is_number);
      cell = is_number ? ShortNumber(value) : cell;
    }
  }
  return table;
}

}  // namespace

ChartPanel::ChartPanel(const QString& name, Qt::Orientation orientation, QString folder,
                       QWidget* parent)
    : QWidget(parent),
      name_(name),
      folder_(std::move(folder)),
      chart_(new ChartView),
      model_(new DataTableModel(this)),
      table_(new ResultTable(Text("Numbers of the chart"))) {
  auto* splitter = new QSplitter(orientation);
  chart_->setObjectName(name + Text("Chart"));
  table_->setObjectName(name + Text("Table"));
  table_->setModel(model_);
  splitter->addWidget(chart_);
  splitter->addWidget(TableSide());
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 2);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
}

QWidget* ChartPanel::TableSide() {
  auto* side = new QWidget;
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(table_);
  AddButtons(*layout);
  return side;
}

void ChartPanel::AddButtons(QBoxLayout& layout) {
  auto* save = new QPushButton(Text("Save c&hart..."));
  save->setObjectName(name_ + Text("Save"));
  save->setToolTip(Text("Save the chart for an article (SVG, PDF, PNG) or its numbers (CSV)."));
  auto* copy = new QPushButton(Text("Copy &table"));
  copy->setObjectName(name_ + Text("Copy"));
  copy->setToolTip(
      Text("Copy the selected rows, or all, with their heads, to be pasted into a spreadsheet."));
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(save);
  row->addWidget(copy);
  layout.addLayout(row);
  connect(save, &QPushButton::clicked, this, [this] { AskAndSave(); });
  connect(copy, &QPushButton::clicked, this, [this] { table_->CopyRows(); });
}

void ChartPanel::AskAndSave() {
  const QString path =
      AskWhereToSave(window(), Text("Save chart"), folder_ + QLatin1Char('/') + name_.toLower(),
                     {Text("Vector graphics (*.svg)"), Text("Portable document (*.pdf)"),
                      Text("Picture, 300 dpi (*.png)"), Text("Numbers of the chart (*.csv)")});
  if (!path.isEmpty()) {
    chart_->SaveChart(path);
  }
}

void ChartPanel::Show(const Chart& chart) { Show(chart, ShortTableOf(chart)); }

void ChartPanel::Show(const Chart& chart, const DataTable& table) {
  chart_->SetChart(chart);
  model_->SetTable(table);
  table_->FitColumns();
  table_->setMinimumWidth(
      std::min(table_->FullWidth(), kWidestTable * fontMetrics().averageCharWidth()));
}

}  // namespace kaldo

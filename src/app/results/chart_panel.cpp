// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_panel.h"

#include <QAction>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/base/wrapping_row.h"
#include "app/results/chart_layout.h"
#include "app/results/chart_view.h"
#include "app/results/result_table.h"

namespace kaldo {

namespace {

constexpr int kWidestTable = 60;  ///< in characters; a wider one scrolls where room is scarce

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
      chart_(new ChartView),
      model_(new DataTableModel(this)),
      table_(new ResultTable(Tr("Numbers of the chart"))),
      saver_(*this, name, std::move(folder),
             [this] { return std::pair(chart_->ShownFigure(), ChartSize(chart_->Shown())); }) {
  auto* splitter = new QSplitter(orientation);
  chart_->setObjectName(name + Text("Chart"));
  table_->setObjectName(name + Text("Table"));
  table_->setModel(model_);
  splitter->addWidget(chart_);
  splitter->addWidget(table_);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 2);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter, 1);
  AddButtons(*layout, name);
}

void ChartPanel::AddButtons(QBoxLayout& layout, const QString& name) {
  auto* copy = new QPushButton(Tr("Copy &table"));
  copy->setObjectName(name + Text("Copy"));
  copy->setToolTip(
      Tr("Copy the selected rows, or all, with their heads, to be pasted into a spreadsheet."));
  auto* row = new WrappingRow(WrappingRow::Side::kRight);
  saver_.AddButtons(*row->layout());
  row->layout()->addWidget(copy);
  layout.addWidget(row);
  connect(copy, &QPushButton::clicked, this, [this] { table_->CopyRows(); });
  saver_.AddMenu(*chart_);
  auto* const action = new QAction(Tr("Copy &table"), chart_);
  connect(action, &QAction::triggered, this, [this] { table_->CopyRows(); });
  chart_->addAction(action);
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

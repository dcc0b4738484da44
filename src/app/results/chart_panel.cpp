// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_panel.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSpinBox>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/results/chart_layout.h"
#include "app/results/chart_view.h"
#include "app/results/result_table.h"
#include "app/results/save_file.h"

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
  splitter->addWidget(table_);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 2);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter, 1);
  AddButtons(*layout);
  AddChartMenu();
}

void ChartPanel::AddButtons(QBoxLayout& layout) {
  auto* save = new QPushButton(Text("Save c&hart..."));
  save->setObjectName(name_ + Text("Save"));
  save->setToolTip(Text("Save the chart for an article (SVG, PDF, PNG) or its numbers (CSV)."));
  auto* size = NewButton("Si&ze...", (name_ + Text("Size")).toStdString(),
                         "Choose the width and the height of a saved chart in millimetres.");
  auto* picture = NewButton("Copy p&icture", (name_ + Text("Picture")).toStdString(),
                            "Copy the chart as a picture, for a text or a slide.");
  auto* copy = new QPushButton(Text("Copy &table"));
  copy->setObjectName(name_ + Text("Copy"));
  copy->setToolTip(
      Text("Copy the selected rows, or all, with their heads, to be pasted into a spreadsheet."));
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(save);
  row->addWidget(size);
  row->addWidget(picture);
  row->addWidget(copy);
  layout.addLayout(row);
  connect(save, &QPushButton::clicked, this, [this] { AskAndSave(); });
  connect(size, &QPushButton::clicked, this, [this] { AskSize(); });
  connect(picture, &QPushButton::clicked, this, [this] { chart_->CopyPicture(SavedSize()); });
  connect(copy, &QPushButton::clicked, this, [this] { table_->CopyRows(); });
}

void ChartPanel::AddChartMenu() {
  chart_->setContextMenuPolicy(Qt::ActionsContextMenu);
  const auto add = [this](std::string_view text, auto act) {
    auto* const action = new QAction(Text(text), chart_);
    connect(action, &QAction::triggered, this, act);
    chart_->addAction(action);
  };
  add("Copy &picture", [this] { chart_->CopyPicture(SavedSize()); });
  add("Copy &table", [this] { table_->CopyRows(); });
  add("&Save chart...", [this] { AskAndSave(); });
  add("Si&ze...", [this] { AskSize(); });
}

QSize ChartPanel::SavedSize() const {
  return millimetres_ ? ChartUnits(*millimetres_) : ChartSize(chart_->Shown());
}

void ChartPanel::AskSize() {
  constexpr int kSmallest = 40;
  constexpr int kLargest = 400;
  QDialog dialog(window());
  dialog.setObjectName(Text("ChartSize"));
  dialog.setWindowTitle(Text("Size of saved charts"));
  auto* const form = new QFormLayout(&dialog);
  const QSize now = Millimetres(SavedSize());
  const auto add = [&](std::string_view label, std::string_view name, int value) {
    auto* const field = new QSpinBox;
    field->setObjectName(Text(name));
    field->setRange(kSmallest, kLargest);
    field->setSuffix(Text(" mm"));
    field->setValue(value);
    form->addRow(Text(label), field);
    return field;
  };
  const QSpinBox* const width = add("&Width", "ChartWidth", now.width());
  const QSpinBox* const height = add("&Height", "ChartHeight", now.height());
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  form->addRow(buttons);
  if (dialog.exec() == QDialog::Accepted) {
    millimetres_ = QSize(width->value(), height->value());
  }
}

void ChartPanel::AskAndSave() {
  const QString path =
      AskWhereToSave(window(), Text("Save chart"), folder_ + QLatin1Char('/') + name_.toLower(),
                     {Text("Vector graphics (*.svg)"), Text("Portable document (*.pdf)"),
                      Text("Picture, 300 dpi (*.png)"), Text("Numbers of the chart (*.csv)")});
  if (!path.isEmpty()) {
    chart_->SaveChart(path, SavedSize());
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

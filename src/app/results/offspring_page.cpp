// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/offspring_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/base/text.h"
#include "app/results/allocation_classes.h"
#include "app/results/comparison_panel.h"
#include "app/results/offspring_model.h"
#include "app/results/result_table.h"

namespace kaldo {

OffspringPage::OffspringPage(const SharedAllocation& allocation, QString folder, QWidget* parent)
    : QWidget(parent),
      folder_(std::move(folder)),
      model_(new OffspringModel(allocation, this)),
      filter_(new OffspringFilter(*model_, this)),
      table_(new ResultTable(Text("Offspring and their parents"))),
      comparison_(new ComparisonPanel(allocation)),
      find_(new QLineEdit),
      show_(new QComboBox),
      count_(new QLabel) {
  table_->setObjectName(Text("OffspringTable"));
  table_->setModel(filter_);
  table_->setSortingEnabled(true);
  table_->sortByColumn(0, Qt::AscendingOrder);
  table_->FitColumns();
  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(ListSide());
  splitter->addWidget(comparison_);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 2);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
  connect(find_, &QLineEdit::textChanged, this, [this] { Narrow(); });
  connect(show_, &QComboBox::currentIndexChanged, this, [this] { Narrow(); });
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowCurrent(); });
  Narrow();
  table_->setCurrentIndex(filter_->index(0, 0));
}

QWidget* OffspringPage::ChoiceRow() {
  find_->setObjectName(Text("OffspringFind"));
  find_->setPlaceholderText(Text("part of a name"));
  find_->setToolTip(
      Text("Show only offspring whose name, or the name of a parent, contains this."));
  find_->setClearButtonEnabled(true);
  show_->setObjectName(Text("OffspringShow"));
  show_->setToolTip(Text("Show only one class of allocations, or those to be looked at twice."));
  show_->addItem(Text("all offspring"));
  for (const QString& name : ClassNames(model_->RunFlow())) {
    show_->addItem(name);
  }
  show_->addItem(Text("several pairs"));
  show_->addItem(Text("no pair"));
  count_->setObjectName(Text("OffspringCount"));
  auto* find_label = new QLabel(Text("Fi&nd:"));
  find_label->setBuddy(find_);
  auto* show_label = new QLabel(Text("Sho&w:"));
  show_label->setBuddy(show_);
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(find_label);
  layout->addWidget(find_, 1);
  layout->addWidget(show_label);
  layout->addWidget(show_);
  layout->addWidget(count_);
  return row;
}

QWidget* OffspringPage::ListSide() {
  auto* copy = new QPushButton(Text("Copy &rows"));
  copy->setObjectName(Text("OffspringCopy"));
  copy->setToolTip(
      Text("Copy the selected rows with their heads, to be pasted into a spreadsheet (Ctrl+C)."));
  auto* save = new QPushButton(Text("&Export table..."));
  save->setObjectName(Text("OffspringExport"));
  save->setToolTip(Text("Save all rows shown, in their order, as comma-separated values."));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(copy);
  buttons->addWidget(save);
  auto* side = new QWidget;
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(ChoiceRow());
  layout->addWidget(table_);
  layout->addLayout(buttons);
  connect(copy, &QPushButton::clicked, this, [this] { table_->CopyRows(); });
  connect(save, &QPushButton::clicked, this,
          [this] { table_->ExportRows(folder_ + Text("/offspring.csv")); });
  return side;
}

void OffspringPage::Narrow() {
  const auto classes = static_cast<int>(ClassNames(model_->RunFlow()).size());
  const int chosen = show_->currentIndex();
  OffspringChoice choice;
  choice.name = find_->text();
  if (chosen >= 1 && chosen <= classes) {
    choice.the_class = static_cast<std::size_t>(chosen - 1);
  }
  choice.only_several_pairs = chosen == classes + 1;
  choice.only_without_pair = chosen == classes + 2;
  filter_->Choose(choice);
  count_->setText(Text("%1 of %2 offspring").arg(filter_->rowCount()).arg(model_->rowCount()));
  ShowCurrent();
}

void OffspringPage::ShowCurrent() {
  const QModelIndex current = filter_->mapToSource(table_->currentIndex());
  if (current.isValid()) {
    comparison_->ShowOffspring(static_cast<std::size_t>(current.row()));
  } else {
    comparison_->Clear();
  }
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/offspring_page.h"

#include <QComboBox>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/base/text.h"
#include "app/results/allocation_classes.h"
#include "app/results/comparison_panel.h"
#include "app/results/offspring_model.h"
#include "app/results/result_table.h"
#include "app/results/searchable_table.h"

namespace kaldo {

namespace {

constexpr SearchableTexts kTexts{
    "Offspring",
    "Offspring and their parents",
    "part of a name",
    "Show only offspring whose name, or the name of a parent, contains this.",
    "Show only one class of allocations, or those to be looked at twice.",
    "offspring.csv"};

}  // namespace

OffspringPage::OffspringPage(const SharedAllocation& allocation, const QString& folder,
                             QWidget* parent)
    : QWidget(parent),
      model_(new OffspringModel(allocation, this)),
      filter_(new OffspringFilter(*model_, this)),
      list_(new SearchableTable(kTexts, folder)),
      comparison_(new ComparisonPanel(allocation)) {
  QComboBox& choices = list_->Choices();
  choices.addItem(Text("all offspring"));
  for (const QString& name : ClassNames(model_->RunFlow())) {
    choices.addItem(name);
  }
  choices.addItem(Text("several pairs"));
  choices.addItem(Text("no pair"));
  ResultTable& table = list_->Table();
  table.setModel(filter_);
  table.setSortingEnabled(true);
  table.sortByColumn(0, Qt::AscendingOrder);
  table.FitColumns();
  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(list_);
  splitter->addWidget(comparison_);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 2);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
  list_->SetOnChoice([this] { Narrow(); });
  connect(table.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowCurrent(); });
  Narrow();
  table.setCurrentIndex(filter_->index(0, 0));
}

void OffspringPage::Narrow() {
  const auto classes = static_cast<int>(ClassNames(model_->RunFlow()).size());
  const int chosen = list_->Choices().currentIndex();
  OffspringChoice choice;
  choice.name = list_->SoughtText();
  if (chosen >= 1 && chosen <= classes) {
    choice.the_class = static_cast<std::size_t>(chosen - 1);
  }
  choice.only_several_pairs = chosen == classes + 1;
  choice.only_without_pair = chosen == classes + 2;
  filter_->Choose(choice);
  list_->SetCount(Text("%1 of %2 offspring").arg(filter_->rowCount()).arg(model_->rowCount()));
  ShowCurrent();
}

void OffspringPage::ShowCurrent() {
  const QModelIndex current = filter_->mapToSource(list_->Table().currentIndex());
  if (current.isValid()) {
    comparison_->ShowOffspring(static_cast<std::size_t>(current.row()));
  } else {
    comparison_->Clear();
  }
}

}  // namespace kaldo

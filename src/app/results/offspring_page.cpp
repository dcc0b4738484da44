// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/offspring_page.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "allocation/findings.h"
#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/allocation_classes.h"
#include "app/results/comparison_panel.h"
#include "app/results/result_table.h"
#include "app/results/searchable_table.h"

namespace kaldo {

namespace {

constexpr SearchableTexts kTexts{
    "Offspring",
    Phrase("Offspring and their parents"),
    Phrase("part of a name"),
    Phrase("Show only offspring whose name, or the name of a parent, contains this."),
    Phrase("Show only one class of allocations, or those to be looked at twice."),
    "offspring.csv"};

}  // namespace

OffspringPage::OffspringPage(const SharedAllocation& allocation, const QString& folder,
                             QWidget* parent)
    : QWidget(parent),
      allocation_(allocation),
      model_(new OffspringModel(allocation, this)),
      filter_(new OffspringFilter(*model_, this)),
      list_(new SearchableTable(kTexts, folder)),
      comparison_(new ComparisonPanel(allocation)) {
  FillChoices();
  model_->SetColours(CertaintyColoursOf(palette()));
  ResultTable& table = list_->Table();
  table.setModel(filter_);
  table.setSortingEnabled(true);
  table.sortByColumn(0, Qt::AscendingOrder);
  table.FitColumns();
  for (int column = 0; column < model_->columnCount(); ++column) {
    table.setColumnHidden(column, NeedsConfidence(static_cast<OffspringColumn>(column)) &&
                                      !KnowsCertainty(allocation->run.result));
  }
  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(NewUpperHalf());
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

/// The table with what its marks mean.
QWidget* OffspringPage::NewUpperHalf() {
  if (!KnowsCertainty(allocation_->run.result)) {
    return list_;
  }
  QStringList meanings;
  for (const Certainty certainty : kAllCertainties) {
    meanings += CertaintyText(certainty) + Text(": ") + TrCore(MeaningForOffspring(certainty));
  }
  auto* legend = NewHint(nullptr);
  legend->setObjectName(Text("OffspringLegend"));
  legend->setText(meanings.join(Text("   ")));
  auto* half = new QWidget;
  auto* layout = new QVBoxLayout(half);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(list_, 1);
  layout->addWidget(legend);
  return half;
}

void OffspringPage::AddChoice(const QString& text, const OffspringChoice& choice,
                              const QString& tip) {
  QComboBox& list = list_->Choices();
  choices_.push_back(choice);
  list.addItem(text);
  list.setItemData(list.count() - 1, tip, Qt::ToolTipRole);
}

void OffspringPage::FillChoices() {
  AddChoice(Tr("all offspring"), {});
  const std::vector<QString> classes = ClassNames(model_->RunFlow());
  for (std::size_t k = 0; k < classes.size(); ++k) {
    OffspringChoice choice;
    choice.the_class = k;
    AddChoice(classes[k], choice);
  }
  OffspringChoice several;
  several.only_several_pairs = true;
  AddChoice(Tr("several pairs"), several);
  OffspringChoice none;
  none.only_without_pair = true;
  AddChoice(Tr("no pair"), none);
  if (!KnowsCertainty(allocation_->run.result)) {
    return;
  }
  OffspringChoice check;
  check.only_to_check = true;
  to_check_ = static_cast<int>(choices_.size());
  AddChoice(Tr("to check"), check,
            Tr("A parent is open, or what the results say is less probable than not."));
  for (const Certainty certainty : kAllCertainties) {
    OffspringChoice choice;
    choice.certainty = certainty;
    AddChoice(CertaintyText(certainty), choice, TrCore(MeaningForOffspring(certainty)));
  }
}

void OffspringPage::ShowAll() {
  list_->ClearSought();
  list_->Choices().setCurrentIndex(0);
}

void OffspringPage::ShowOffspring(std::size_t place) {
  ShowAll();
  const QModelIndex row = filter_->mapFromSource(model_->index(static_cast<int>(place), 0));
  list_->Table().setCurrentIndex(row);
  list_->Table().scrollTo(row);
}

void OffspringPage::ShowToCheck() {
  list_->ClearSought();
  list_->Choices().setCurrentIndex(to_check_);
}

void OffspringPage::ShowOffspringOf(Slot parent) {
  OffspringChoice choice;
  choice.parent = parent;
  ShowAsked(choice,
            Tr("offspring of %1").arg(Text(allocation_->run.input.table.Name(parent).Text())));
}

void OffspringPage::ShowSome(std::vector<std::size_t> places, const QString& what) {
  OffspringChoice choice;
  choice.only = std::move(places);
  ShowAsked(choice, what);
}

void OffspringPage::ShowAsked(const OffspringChoice& choice, const QString& what) {
  ShowAll();
  if (asked_ < 0) {
    asked_ = static_cast<int>(choices_.size());
    AddChoice(what, choice);
  }
  choices_[static_cast<std::size_t>(asked_)] = choice;
  list_->Choices().setItemText(asked_, what);
  list_->Choices().setCurrentIndex(asked_);
}

void OffspringPage::Narrow() {
  OffspringChoice choice = choices_[static_cast<std::size_t>(list_->Choices().currentIndex())];
  choice.name = list_->SoughtText();
  const QModelIndex current = filter_->mapToSource(list_->Table().currentIndex());
  filter_->Choose(choice);
  list_->Table().setCurrentIndex(filter_->ShownOrFirst(current));
  list_->SetCount(Tr("%1 of %2 offspring").arg(filter_->rowCount()).arg(model_->rowCount()));
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

void OffspringPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    model_->SetColours(CertaintyColoursOf(palette()));
  }
}

}  // namespace kaldo

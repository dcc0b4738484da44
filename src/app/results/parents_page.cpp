// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/parents_page.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "allocation/findings.h"
#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/parents_model.h"
#include "app/results/result_table.h"
#include "app/results/searchable_table.h"
#include "confidence/effective_breeders.h"

namespace kaldo {

namespace {

constexpr SearchableTexts kTexts{"Parents",
                                 Phrase("Collected parents and their offspring"),
                                 Phrase("part of a name"),
                                 Phrase("Show only parents whose name contains this."),
                                 Phrase("Show only parents with offspring, or without."),
                                 "parents.csv"};

QString FamiliesText(const AllocationResult& result, std::size_t without, int parents) {
  QString text = Tr("%1 of %2 collected parents have no offspring here.").arg(without).arg(parents);
  if (KnowsCertainty(result)) {
    const auto named = NamedParentsOf(result.confidence->offspring);
    text += Text(" ") + TrCore(SibshipsSentence(SibshipsOf(named))) + Text("\n") +
            TrCore(BreedersSentence(EffectiveBreedersOf(named)));
  }
  return text;
}

}  // namespace

ParentsPage::ParentsPage(const SharedAllocation& allocation, const QString& folder,
                         std::function<void(Slot)> show_offspring, QWidget* parent)
    : QWidget(parent),
      show_offspring_(std::move(show_offspring)),
      model_(new ParentsModel(allocation, this)),
      filter_(new ParentsFilter(*model_, this)),
      list_(new SearchableTable(kTexts, folder)),
      families_(NewHint(nullptr)),
      offspring_(NewButton(
          Phrase("S&how its offspring"), "ParentsOffspring",
          Phrase("Show the offspring of the chosen parent (Enter, or a double click)."))) {
  QComboBox& choices = list_->Choices();
  choices.addItem(Tr("all parents"));
  choices.addItem(Tr("with offspring"));
  choices.addItem(Tr("without offspring"));
  LayOut(*allocation);
}

void ParentsPage::LayOut(const FinishedAllocation& allocation) {
  ResultTable& table = list_->Table();
  table.setModel(filter_);
  table.setSortingEnabled(true);
  table.sortByColumn(static_cast<int>(ParentColumn::kOffspring), Qt::DescendingOrder);
  table.FitColumns();
  table.setColumnHidden(static_cast<int>(ParentColumn::kSex),
                        allocation.settings.flow == Flow::kNonSexed);
  families_->setObjectName(Text("ParentsFamilies"));
  families_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  families_->setText(
      FamiliesText(allocation.run.result, model_->WithoutOffspring(), model_->rowCount()));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(families_);
  layout->addWidget(list_, 1);
  layout->addWidget(offspring_, 0, Qt::AlignLeft);
  list_->SetOnChoice([this] { Narrow(); });
  connect(&table, &QTableView::activated, this, [this] { ShowOffspring(); });
  connect(offspring_, &QPushButton::clicked, this, [this] { ShowOffspring(); });
  Narrow();
  table.setCurrentIndex(filter_->index(0, 0));
}

void ParentsPage::Narrow() {
  QTableView& table = list_->Table();
  const QModelIndex current = filter_->mapToSource(table.currentIndex());
  filter_->Choose(list_->SoughtText(), static_cast<ShownParents>(list_->Choices().currentIndex()));
  table.setCurrentIndex(filter_->ShownOrFirst(current));
  list_->SetCount(Tr("%1 of %2 parents").arg(filter_->rowCount()).arg(model_->rowCount()));
  offspring_->setEnabled(filter_->rowCount() > 0);
}

void ParentsPage::ShowOffspring() {
  const QModelIndex current = filter_->mapToSource(list_->Table().currentIndex());
  if (current.isValid()) {
    show_offspring_(model_->Parent(current.row()).slot);
  }
}

}  // namespace kaldo

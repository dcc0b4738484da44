// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/pseudo_offspring_page.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/problem.h"

namespace kaldo {

namespace {

constexpr FieldText kNumber{
    Phrase("Nu&mber of pseudo-offspring generated at each iteration"), "OffspringPerIteration",
    Phrase("They are shared out over the origins by the weights below; fractions are dropped.")};

QTableWidgetItem* NewItem(const QString& text, Qt::Alignment alignment) {
  auto* const item = new QTableWidgetItem(text);
  item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
  item->setTextAlignment(alignment | Qt::AlignVCenter);
  return item;
}

QTableWidget* NewTable() {
  auto* const table = new QTableWidget;
  table->setObjectName(Text("Origins"));
  table->setAccessibleName(Tr("Weights of the origins of the pseudo-offspring"));
  table->setToolTip(
      Tr("The share of each parental origin in the population, which also weighs "
         "the partial results into the global ones"));
  table->setColumnCount(3);
  table->setHorizontalHeaderLabels({Tr("True parents"), Tr("Weight"), Tr("Pseudo-offspring")});
  table->verticalHeader()->hide();
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table->setTabKeyNavigation(false);
  table->setSelectionMode(QAbstractItemView::NoSelection);
  return table;
}

}  // namespace

PseudoOffspringPage::PseudoOffspringPage(Flow flow)
    : FlowPage(kOffspringScreen, SimulationCaption(flow)),
      table_(NewTable()),
      box_(new ErrorModelBox(Phrase("  Transmission error  "))) {
  auto* const group = new QGroupBox(Tr("  Pseudo-offspring  "));
  auto* const inside = new QVBoxLayout(group);
  auto* const form = new QFormLayout;
  number_ = AddLineEdit(*form, kNumber);
  number_->setText(NumberText(FirstShownSimulation(flow).offspring_per_iteration));
  inside->addLayout(form);
  inside->addWidget(table_);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(group);
  column->addWidget(box_);
  column->addStretch(1);
  connect(number_, &QLineEdit::textChanged, this, [this] { ShowShares(); });
}

void PseudoOffspringPage::SetShares(Shares shares) {
  shares_ = std::move(shares);
  ShowShares();
}

void PseudoOffspringPage::ShowShares() {
  if (!shares_) {
    return;
  }
  const auto shares = shares_(std::max(OffspringPerIteration(), 0));
  table_->setRowCount(static_cast<int>(shares.size()));
  for (int row = 0; const OriginShare& share : shares) {
    table_->setItem(row, 0, NewItem(Text(share.label), Qt::AlignLeft));
    table_->setItem(row, 1, NewItem(Text(fmt::format("{:.3f}", share.weight)), Qt::AlignRight));
    table_->setItem(row, 2, NewItem(NumberText(share.offspring), Qt::AlignRight));
    ++row;
  }
  const int height = table_->horizontalHeader()->sizeHint().height() +
                     table_->rowCount() * table_->verticalHeader()->defaultSectionSize() +
                     2 * table_->frameWidth();
  table_->setFixedHeight(height);
}

void PseudoOffspringPage::SetNumber(std::int32_t offspring_per_iteration) {
  number_->setText(NumberText(offspring_per_iteration));
}

std::int32_t PseudoOffspringPage::OffspringPerIteration() const {
  return WholeNumberIn(*number_).value_or(0);
}

void PseudoOffspringPage::TellTyped(Problem& problem) const {
  if (problem.kind == ProblemKind::kNoPseudoOffspring) {
    TellIfNoWholeNumber(*number_, problem);
  }
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/comparison_panel.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/comparison_model.h"
#include "app/results/result_table.h"

namespace kaldo {

ComparisonPanel::ComparisonPanel(SharedAllocation allocation, QWidget* parent)
    : QWidget(parent),
      allocation_(std::move(allocation)),
      model_(new ComparisonModel(allocation_, this)),
      table_(new ResultTable(Tr("Genotypes locus by locus"))),
      pair_(new QComboBox),
      verdict_(new QLabel) {
  pair_->setObjectName(Text("ComparisonPair"));
  pair_->setToolTip(Tr("Pairs that explain the offspring equally well. The first one decided."));
  pair_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  verdict_->setObjectName(Text("ComparisonVerdict"));
  verdict_->setWordWrap(true);
  verdict_->setTextFormat(Qt::PlainText);
  verdict_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  table_->setObjectName(Text("ComparisonTable"));
  model_->SetColours(FitColoursOf(palette()));
  table_->setModel(model_);
  for (const auto column : {ComparisonColumn::kOther1, ComparisonColumn::kOtherOffset1,
                            ComparisonColumn::kOther2, ComparisonColumn::kOtherOffset2}) {
    table_->setColumnHidden(static_cast<int>(column), !model_->HasOthers());
  }
  LayOut();
  connect(pair_, &QComboBox::currentIndexChanged, this, [this] { ShowPair(); });
  Clear();
}

void ComparisonPanel::LayOut() {
  auto* pair_label = new QLabel(Tr("Pair besi&de it:"));
  pair_label->setBuddy(pair_);
  auto* head = new QHBoxLayout;
  head->addWidget(pair_label);
  head->addWidget(pair_);
  head->addWidget(verdict_, 1);
  auto* legend = new QLabel(
      Tr("%1 exact   %2 within the tolerance (an error)   %3 above it (UC)   %4 one allele in "
         "neither parent   %5 undefined")
          .arg(SignOf(LocusFit::kExact), SignOf(LocusFit::kTolerated), SignOf(LocusFit::kExcluded),
               SignOf(LocusFit::kUnmeasured), SignOf(LocusFit::kUnsaid)));
  legend->setObjectName(Text("ComparisonLegend"));
  legend->setWordWrap(true);
  auto* copy = NewButton(Phrase("Copy geno&types"), "ComparisonCopy",
                         Phrase("Copy the selected loci, or all, with their heads."));
  auto* foot = new QHBoxLayout;
  foot->addWidget(legend, 1);
  foot->addWidget(copy);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(table_);
  layout->addLayout(foot);
  connect(copy, &QPushButton::clicked, this, [this] { table_->CopyRows(); });
}

void ComparisonPanel::FillPairs() {
  const QSignalBlocker quiet(pair_);
  pair_->clear();
  const auto pairs = allocation_->run.result.outcomes[offspring_].Pairs();
  const GenotypeTable& table = allocation_->run.input.table;
  for (std::size_t k = 0; k < pairs.size(); ++k) {
    pair_->addItem(Tr("%1 of %2: %3 x %4")
                       .arg(QString::number(k + 1), QString::number(pairs.size()),
                            Text(table.Name(pairs[k].parent1).Text()),
                            Text(table.Name(pairs[k].parent2).Text())));
  }
  if (pairs.empty()) {
    pair_->addItem(Tr("none"));
  }
  pair_->setEnabled(pairs.size() > 1);
}

void ComparisonPanel::ShowOffspring(std::size_t offspring) {
  offspring_ = offspring;
  FillPairs();
  ShowPair();
}

void ComparisonPanel::ShowPair() {
  model_->ShowPair(offspring_, static_cast<std::size_t>(pair_->currentIndex()));
  verdict_->setText(model_->Verdict());
  table_->FitColumns();
}

void ComparisonPanel::Clear() {
  const QSignalBlocker quiet(pair_);
  pair_->clear();
  pair_->setEnabled(false);
  model_->Clear();
  verdict_->setText(model_->Verdict());
}

void ComparisonPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    model_->SetColours(FitColoursOf(palette()));
  }
}

}  // namespace kaldo

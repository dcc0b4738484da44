// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/alleles_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/allele_frequencies.h"
#include "app/results/chart_panel.h"

namespace kaldo {

AllelesPage::AllelesPage(SharedAllocation allocation, const QString& folder, QWidget* parent)
    : QWidget(parent),
      allocation_(std::move(allocation)),
      locus_(new QComboBox),
      previous_(new QPushButton(Tr("Pre&vious"))),
      next_(new QPushButton(Tr("&Next"))),
      copies_(new QLabel),
      panel_(new ChartPanel(Text("Alleles"), Qt::Horizontal, folder, nullptr)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(LocusRow());
  layout->addWidget(panel_, 1);
  connect(locus_, &QComboBox::currentIndexChanged, this, [this] { ShowLocus(); });
  ShowLocus();
}

QWidget* AllelesPage::LocusRow() {
  locus_->setObjectName(Text("AllelesLocus"));
  locus_->setToolTip(Tr("The loci in use."));
  for (const LocusIndex locus : allocation_->run.result.loci.loci) {
    locus_->addItem(Text(allocation_->run.input.loci.Name(locus)));
  }
  previous_->setObjectName(Text("AllelesPrevious"));
  next_->setObjectName(Text("AllelesNext"));
  previous_->setToolTip(Tr("To the locus before, in the order of the names-of-loci file"));
  next_->setToolTip(Tr("To the next locus, in the order of the names-of-loci file"));
  copies_->setObjectName(Text("AllelesCopies"));
  copies_->setWordWrap(true);
  auto* label = new QLabel(Tr("Loc&us:"));
  label->setBuddy(locus_);
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(label);
  layout->addWidget(locus_);
  layout->addWidget(previous_);
  layout->addWidget(next_);
  layout->addWidget(copies_, 1);
  connect(previous_, &QPushButton::clicked, this,
          [this] { locus_->setCurrentIndex(locus_->currentIndex() - 1); });
  connect(next_, &QPushButton::clicked, this,
          [this] { locus_->setCurrentIndex(locus_->currentIndex() + 1); });
  return row;
}

void AllelesPage::ShowLocus() {
  const int chosen = locus_->currentIndex();
  previous_->setEnabled(chosen > 0);
  next_->setEnabled(chosen + 1 < locus_->count());
  const AllocationInput& input = allocation_->run.input;
  const AlleleFrequencies frequencies = CountAlleles(
      input.table, allocation_->run.result.loci.loci[static_cast<std::size_t>(chosen)]);
  const std::size_t individuals = input.NumberOfParents() + input.NumberOfOffspring();
  copies_->setText(Tr("%1 gene copies typed in parents and offspring together, of %2.")
                       .arg(frequencies.copies)
                       .arg(2 * individuals));
  panel_->Show(FrequencyChart(frequencies, locus_->currentText()), FrequencyTable(frequencies));
}

}  // namespace kaldo

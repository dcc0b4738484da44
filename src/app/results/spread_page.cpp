// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/spread_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/chart_panel.h"

namespace kaldo {

SpreadPage::SpreadPage(std::vector<Correctness> classes, QString note, const QString& folder,
                       QWidget* parent)
    : QWidget(parent),
      classes_(std::move(classes)),
      note_(std::move(note)),
      class_(new QComboBox),
      figures_(new QLabel),
      panel_(new ChartPanel(Text("Spread"), Qt::Horizontal, folder, nullptr)) {
  class_->setObjectName(Text("SpreadClass"));
  class_->setToolTip(Tr("The origin of the pseudo-offspring: which true parents are collected."));
  for (const Correctness& of_class : classes_) {
    class_->addItem(of_class.name);
  }
  class_->setCurrentIndex(class_->count() - 1);
  figures_->setObjectName(Text("SpreadFigures"));
  figures_->setWordWrap(true);
  figures_->setTextFormat(Qt::PlainText);
  auto* label = new QLabel(Tr("Cl&ass:"));
  label->setBuddy(class_);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(class_);
  row->addWidget(figures_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(row);
  layout->addWidget(panel_, 1);
  connect(class_, &QComboBox::currentIndexChanged, this, [this] { ShowClass(); });
  ShowClass();
}

void SpreadPage::ShowClass() {
  const Correctness& chosen = classes_[static_cast<std::size_t>(class_->currentIndex())];
  SpreadChart chart;
  chart.texts = {Tr("Correct decisions by iteration: %1%2").arg(chosen.name, note_),
                 Tr("iteration"), Tr("correct"), false};
  chart.values = chosen.values;
  if (chosen.spread) {
    chart.mean = chosen.spread->mean;
    chart.deviation = chosen.spread->deviation;
    figures_->setText(Tr("mean %1, sd %2 (%3; %4 pseudo-offspring per iteration)")
                          .arg(ShortNumber(chart.mean), ShortNumber(chart.deviation), chosen.text,
                               QString::number(chosen.offspring)));
  } else {
    figures_->setText(Tr("NA: the class has no pseudo-offspring (%1)").arg(chosen.text));
  }
  panel_->Show(chart);
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/sequence_page.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/problem.h"
#include "method/cumulative_sequence.h"

namespace kaldo {

namespace {

constexpr std::size_t kRowsPerColumn = 13;

/// A name as a label shows it: an "&" of the name is no key.
QString LabelText(QString name) { return name.replace(QLatin1Char('&'), Text("&&")); }

}  // namespace

SequencePage::SequencePage()
    : FlowPage(kSequenceScreen, kSequenceCaption), note_(NewHint(nullptr)) {
  auto* const group = new QGroupBox(Tr("  Position of each locus in the sequence  "));
  auto* const grid = new QGridLayout;
  for (std::size_t k = 0; k < rows_.size(); ++k) {
    Row& row = rows_.at(k);
    row.name = new QLabel;
    row.name->setTextFormat(Qt::PlainText);
    row.index = new QLineEdit;
    row.index->setObjectName(Text("Index" + std::to_string(k + 1)));
    row.index->setMinimumWidth(fontMetrics().averageCharWidth() * 5);
    row.index->setMaximumWidth(fontMetrics().averageCharWidth() * 10);
    row.name->setBuddy(row.index);
    connect(row.index, &QLineEdit::textEdited, this, [this] { Tell({}); });
    const int line = static_cast<int>(k % kRowsPerColumn);
    const int column = static_cast<int>(k / kRowsPerColumn) * 2;
    grid->addWidget(row.name, line, column);
    grid->addWidget(row.index, line, column + 1);
  }
  auto* const inside = new QVBoxLayout(group);
  inside->addLayout(grid);
  inside->addStretch();
  auto* const column = new QVBoxLayout(this);
  column->addWidget(group);
  column->addLayout(NewOrderRow());
  SetNames({});
}

QLayout* SequencePage::NewOrderRow() {
  auto* const order =
      NewButton(Phrase("Order by &information"), "OrderByInformation",
                Phrase("The locus that excludes most random pairs of parents enters first, as by "
                       "exclusion_pair in \"Loci.tsv\""));
  note_->setObjectName(Text("OrderNote"));
  connect(order, &QPushButton::clicked, this, [this] {
    if (on_order_) {
      on_order_();
    }
  });
  auto* const row = new QHBoxLayout;
  row->addWidget(order, 0, Qt::AlignTop);
  row->addWidget(note_, 1);
  return row;
}

void SequencePage::Tell(const QString& note) { note_->setText(note); }

void SequencePage::SetNames(const std::vector<std::string>& names) {
  number_of_loci_ = names.size();
  for (std::size_t k = 0; k < rows_.size(); ++k) {
    const bool has_locus = k < names.size();
    const QString name = has_locus ? Text(names[k]) : QString();
    rows_.at(k).name->setText(LabelText(name));
    rows_.at(k).name->setVisible(has_locus);
    rows_.at(k).index->setAccessibleName(name);
    rows_.at(k).index->setToolTip(
        Tr("Position of the locus: 1 enters first. A whole number from 1 to the number of loci"));
    rows_.at(k).index->setVisible(has_locus);
  }
  SetIndices(FileOrderSequence(number_of_loci_));
  Tell({});
}

void SequencePage::SetIndices(const std::vector<std::int32_t>& indices) {
  for (std::size_t k = 0; k < indices.size() && k < number_of_loci_; ++k) {
    rows_.at(k).index->setText(NumberText(indices[k]));
  }
}

std::vector<std::int32_t> SequencePage::Indices() const {
  std::vector<std::int32_t> indices;
  for (std::size_t k = 0; k < number_of_loci_; ++k) {
    indices.push_back(WholeNumberIn(*rows_.at(k).index).value_or(0));
  }
  return indices;
}

void SequencePage::TellTyped(Problem& problem) const {
  if (problem.kind == ProblemKind::kSequenceHasZero) {
    for (std::size_t k = number_of_loci_; k-- > 0;) {  // the first one is told
      TellIfNoWholeNumber(*rows_.at(k).index, problem);
    }
  }
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/loci_page.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

constexpr std::size_t kRowsPerColumn = 13;

constexpr FieldText kAll{Phrase("   &All loci                "), "AllLoci",
                         Phrase("Every locus takes part, whatever is marked in its row.")};
constexpr FieldText kSequence{
    Phrase("&Cumulative Sequence"), "Sequence",
    Phrase("Run with the first locus, then with the first two, and so on: shows "
           "how many loci are enough.")};

}  // namespace

LociPage::LociPage(const ScreenEntry& entry, Phrase caption)
    : FlowPage(entry, caption),
      all_(new QCheckBox(Tr(kAll.label))),
      sequence_(new QCheckBox(Tr(kSequence.label))) {
  Describe(*all_, kAll);
  Describe(*sequence_, kSequence);
  Number(*all_, kAllLociBox);
  Number(*sequence_, kCumulativeSequenceBox);
  auto* const group = new QGroupBox(Tr("  Choice of loci  "));
  auto* const inside = new QVBoxLayout(group);
  inside->addWidget(all_);
  inside->addWidget(NewRows());
  inside->addStretch();
  inside->addWidget(sequence_);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(group);

  connect(all_, &QCheckBox::toggled, this, [this] { ShowRows(); });
  auto* const mark_all = new QShortcut(QKeySequence::SelectAll, this);
  connect(mark_all, &QShortcut::activated, this, [this] { SetInUse(std::nullopt); });
  ShowRows();
}

QWidget* LociPage::NewRows() {
  auto* const table = new QWidget;
  auto* const grid = new QGridLayout(table);
  grid->setContentsMargins(0, 0, 0, 0);
  for (std::size_t k = 0; k < rows_.size(); ++k) {
    Row& row = rows_.at(k);
    row.name = new QLineEdit;
    row.name->setObjectName(Text("LocusName" + std::to_string(k + 1)));
    row.name->setReadOnly(true);
    row.name->setFocusPolicy(Qt::NoFocus);
    row.name->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
    row.in_use = new QCheckBox;
    row.in_use->setChecked(true);
    row.in_use->setObjectName(Text("Locus" + std::to_string(k + 1)));
    Number(*row.in_use, kFirstLocusBox + static_cast<int>(k));
    const int line = static_cast<int>(k % kRowsPerColumn);
    const int column = static_cast<int>(k / kRowsPerColumn) * 2;
    grid->addWidget(row.name, line, column);
    grid->addWidget(row.in_use, line, column + 1);
  }
  return table;
}

void LociPage::ShowRows() {
  for (std::size_t k = 0; k < rows_.size(); ++k) {
    const bool has_locus = k < names_.size();
    rows_.at(k).name->setVisible(has_locus);
    rows_.at(k).in_use->setVisible(has_locus && !all_->isChecked());
  }
}

void LociPage::SetNames(const std::vector<std::string>& names) {
  if (names == names_) {
    return;
  }
  names_ = names;
  for (std::size_t k = 0; k < rows_.size(); ++k) {
    const QString name = k < names_.size() ? Text(names_[k]) : QString();
    rows_.at(k).name->setText(name);
    rows_.at(k).name->setAccessibleName(name);
    rows_.at(k).in_use->setAccessibleName(name);
    rows_.at(k).in_use->setToolTip(Tr("Whether the locus takes part in the run"));
    rows_.at(k).in_use->setChecked(true);
  }
  ShowRows();
}

void LociPage::SetInUse(const std::optional<std::vector<std::string>>& names) {
  for (std::size_t k = 0; k < names_.size(); ++k) {
    rows_.at(k).in_use->setChecked(!names || std::find(names->begin(), names->end(), names_[k]) !=
                                                 names->end());
  }
}

void LociPage::SetSequenceWanted(bool wanted) { sequence_->setChecked(wanted); }

std::optional<std::vector<std::string>> LociPage::InUse() const {
  std::vector<std::string> in_use;
  for (std::size_t k = 0; k < names_.size(); ++k) {
    if (rows_.at(k).in_use->isChecked()) {
      in_use.push_back(names_[k]);
    }
  }
  if (all_->isChecked() || in_use.size() == names_.size()) {
    return std::nullopt;
  }
  return in_use;
}

bool LociPage::SequenceWanted() const { return sequence_->isChecked(); }

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/searchable_table.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/result_table.h"

namespace kaldo {

SearchableTable::SearchableTable(const SearchableTexts& texts, const QString& folder,
                                 QWidget* parent)
    : QWidget(parent),
      table_(new ResultTable(Tr(texts.title))),
      find_(new QLineEdit),
      choices_(new QComboBox),
      count_(new QLabel) {
  table_->setObjectName(Text(texts.name) + Text("Table"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(NewChoiceRow(texts));
  layout->addWidget(table_);
  layout->addLayout(NewTableButtons(
      *table_, texts.name,
      Phrase("Copy the selected rows with their heads, to be pasted into a spreadsheet (Ctrl+C)."),
      Phrase("Save all rows shown, in their order, as comma-separated values."),
      folder + Text("/") + Text(texts.file)));
}

QLayout* SearchableTable::NewChoiceRow(const SearchableTexts& texts) {
  find_->setObjectName(Text(texts.name) + Text("Find"));
  find_->setPlaceholderText(Tr(texts.find_hint));
  find_->setToolTip(Tr(texts.find_help));
  find_->setClearButtonEnabled(true);
  choices_->setObjectName(Text(texts.name) + Text("Show"));
  choices_->setToolTip(Tr(texts.show_help));
  count_->setTextFormat(Qt::PlainText);
  count_->setObjectName(Text(texts.name) + Text("Count"));
  auto* find_label = new QLabel(Tr("Fi&nd:"));
  find_label->setBuddy(find_);
  auto* show_label = new QLabel(Tr("Sho&w:"));
  show_label->setBuddy(choices_);
  auto* row = new QHBoxLayout;
  row->addWidget(find_label);
  row->addWidget(find_, 1);
  row->addWidget(show_label);
  row->addWidget(choices_);
  row->addWidget(count_);
  return row;
}

QString SearchableTable::SoughtText() const { return find_->text(); }

void SearchableTable::ClearSought() { find_->clear(); }

void SearchableTable::SetCount(const QString& text) { count_->setText(text); }

void SearchableTable::SetOnChoice(const std::function<void()>& narrow) {
  connect(find_, &QLineEdit::textChanged, this, narrow);
  connect(choices_, &QComboBox::currentIndexChanged, this, narrow);
}

}  // namespace kaldo

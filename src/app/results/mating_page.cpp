// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/mating_page.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/base/wrapping_row.h"
#include "app/results/mating_figure.h"
#include "app/results/mating_view.h"
#include "app/results/result_table.h"

namespace kaldo {

namespace {

constexpr std::size_t kMostNames = 20;  ///< of offspring below the table
constexpr int kListWidth = 44;          ///< in characters; the rest of the list scrolls

}  // namespace

MatingPage::MatingPage(const SharedAllocation& allocation, const QString& folder,
                       ShowFamily show_family, QWidget* parent)
    : QWidget(parent),
      table_(std::make_shared<const MatingTable>(allocation)),
      show_family_(std::move(show_family)),
      view_(new MatingView(table_)),
      list_(new ResultTable(Tr("Families, the largest first"))),
      find_(new QLineEdit),
      found_count_(new QLabel),
      details_(NewHint(nullptr)),
      offspring_(
          NewButton(Phrase("Show offsp&ring"), "MatingsOffspring",
                    Phrase("Show the offspring of the chosen family (Enter, or a double click). A "
                           "double click on a name shows all of that parent."))),
      saver_(*this, Text("Matings"), folder,
             [this] { return std::pair(MatingFigure(table_), MatingFigureSize(*table_)); }) {
  LayOut(folder);
  connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { ShowChosen(); });
  connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& now) {
            if (now.isValid()) {
              view_->Choose(table_->ListPlaces()[static_cast<std::size_t>(now.row())]);
            }
          });
  connect(view_, &QTableView::activated, this, [this] { ShowOffspring(); });
  connect(list_, &QTableView::activated, this, [this] { ShowOffspring(); });
  connect(view_->verticalHeader(), &QHeaderView::sectionDoubleClicked, this,
          [this](int row) { ShowOffspringOfLine(row, true); });
  connect(view_->horizontalHeader(), &QHeaderView::sectionDoubleClicked, this,
          [this](int column) { ShowOffspringOfLine(column, false); });
  ShowChosen();
}

void MatingPage::LayOut(const QString& folder) {
  auto* const note = NewHint(nullptr);
  note->setObjectName(Text("MatingsNote"));
  note->setText(table_->Note());
  auto* const legend = NewHint(nullptr);
  legend->setText(table_->Legend());
  view_->setObjectName(Text("MatingsTable"));
  auto* const model = new DataTableModel(this);
  model->SetTable(table_->List());
  list_->setObjectName(Text("MatingsList"));
  list_->setModel(model);
  details_->setObjectName(Text("MatingsDetails"));
  details_->setMinimumHeight(2 * fontMetrics().lineSpacing());
  // Who had how many with whom is always seen; the names of the offspring are scrolled to.
  int always_seen = list_->verticalScrollBar()->sizeHint().width() + 2 * list_->frameWidth();
  for (int column = 0; column < 3; ++column) {
    always_seen += list_->columnWidth(column);
  }
  list_->setMinimumWidth(always_seen);
  auto* const splitter = new QSplitter(Qt::Horizontal);
  splitter->addWidget(view_);
  splitter->addWidget(list_);
  splitter->setStretchFactor(0, 1);
  splitter->setStretchFactor(1, 0);
  splitter->setChildrenCollapsible(false);
  const int list_width = kListWidth * fontMetrics().averageCharWidth();
  splitter->setSizes({3 * list_width, std::min(list_width, list_->FullWidth())});
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(note);
  layout->addLayout(NewSearchRow());
  layout->addWidget(splitter, 1);
  layout->addWidget(details_);
  layout->addWidget(legend);
  layout->addLayout(NewButtonRow(folder));
  saver_.AddMenu(*view_);
}

QLayout* MatingPage::NewSearchRow() {
  find_->setObjectName(Text("MatingsFind"));
  find_->setPlaceholderText(Tr("part of a name"));
  find_->setToolTip(
      Tr("Go to the families of parents and offspring whose name contains this; "
         "Enter goes to the next."));
  find_->setClearButtonEnabled(true);
  found_count_->setObjectName(Text("MatingsFound"));
  auto* const label = new QLabel(Tr("Fi&nd:"));
  label->setBuddy(find_);
  auto* const whole = new QCheckBox(Tr("&Whole table"));
  whole->setObjectName(Text("MatingsWhole"));
  whole->setToolTip(Tr("Make the cells so small that the table is seen at once."));
  connect(find_, &QLineEdit::textChanged, this, [this](const QString& text) {
    found_ = table_->Find(text);
    view_->Mark(found_);
    found_count_->setText(text.isEmpty() ? QString() : Tr("nothing found"));
    FindNext(0);
  });
  connect(find_, &QLineEdit::returnPressed, this, [this] { FindNext(shown_ + 1); });
  connect(whole, &QCheckBox::toggled, this, [this](bool is_whole) { view_->ShowWhole(is_whole); });
  auto* const row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(find_, 1);
  row->addWidget(found_count_);
  row->addWidget(whole);
  return row;
}

QLayout* MatingPage::NewButtonRow(const QString& folder) {
  auto* const copy =
      NewButton(Phrase("Copy &table"), "MatingsCopy",
                Phrase("Copy the selected families of the list, or all, with their heads, "
                       "to be pasted into a spreadsheet."));
  auto* const save = NewButton(Phrase("&Export table..."), "MatingsExport",
                               Phrase("Save the list of families as comma-separated values."));
  connect(offspring_, &QPushButton::clicked, this, [this] { ShowOffspring(); });
  connect(copy, &QPushButton::clicked, list_, [this] { list_->CopyRows(); });
  connect(save, &QPushButton::clicked, list_,
          [this, folder] { list_->ExportRows(folder + Text("/families.csv")); });
  auto* const others = new WrappingRow(WrappingRow::Side::kRight);
  saver_.AddButtons(*others->layout());
  others->layout()->addWidget(copy);
  others->layout()->addWidget(save);
  auto* const row = new QHBoxLayout;
  row->addWidget(offspring_, 0, Qt::AlignTop);
  row->addWidget(others, 1);
  return row;
}

void MatingPage::FindNext(std::size_t from) {
  if (found_.empty()) {
    return;
  }
  shown_ = from % found_.size();
  view_->Choose(found_[shown_]);
  found_count_->setText(Tr("%1 of %2 found").arg(shown_ + 1).arg(found_.size()));
}

void MatingPage::ShowChosen() {
  const auto chosen = view_->Chosen();
  details_->setText(chosen ? table_->CellTip(*chosen, kMostNames) : QString());
  offspring_->setEnabled(chosen && !table_->CellText(*chosen).isEmpty());
}

void MatingPage::ShowOffspring() const {
  const auto chosen = view_->Chosen();
  const Family* const family = chosen ? table_->Table().At(chosen->row, chosen->column) : nullptr;
  if (family != nullptr) {
    show_family_(family->offspring, Tr("offspring of %1").arg(table_->PlaceTitle(*chosen)));
  }
}

void MatingPage::ShowOffspringOfLine(int line, bool is_row) const {
  const auto place = static_cast<std::size_t>(line);
  const QStringList& names = is_row ? table_->RowNames() : table_->ColumnNames();
  show_family_(is_row ? table_->OffspringInRow(place) : table_->OffspringInColumn(place),
               Tr("offspring of %1").arg(names.value(line)));
}

}  // namespace kaldo

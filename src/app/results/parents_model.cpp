// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/parents_model.h"

#include <algorithm>

#include "allocation/reports/result_line.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/data_table.h"

namespace kaldo {

namespace {

using Column = ParentColumn;

struct ColumnTexts {
  Phrase head;
  Phrase tip;
};

ColumnTexts TextsOf(Column column) {
  switch (column) {
    case Column::kRank:
      return {Phrase("Rank"), Phrase("Place in the file of the parents, separators counted.")};
    case Column::kParent:
      return {Phrase("Parent"), Phrase("Name of the collected parent.")};
    case Column::kSex:
      return {Phrase("Sex"),
              Phrase("From which file the parent is: of the males or of the females.")};
    case Column::kOffspring:
      return {Phrase("Number of offspring"), Phrase("Offspring that the results allocate to it.")};
    case Column::kNamed:
      return {Phrase("Named"),
              Phrase("Offspring of which it is named a parent at the level of confidence.")};
    case Column::kExpected:
      return {Phrase("Expected"),
              Phrase("The sum of the probabilities of the allocations to it: so many of them "
                     "are expected to be its own.")};
    case Column::kMates:
      return {Phrase("Mates"), Phrase("Collected parents with whom it has some of them.")};
    case Column::kWithUncollected:
      return {Phrase("With UC"), Phrase("Offspring whose other parent is taken as uncollected.")};
    case Column::kCount:
      break;
  }
  return {};
}

bool IsText(Column column) { return column == Column::kParent || column == Column::kSex; }

constexpr int kAtRight = static_cast<int>(Qt::AlignRight) | static_cast<int>(Qt::AlignVCenter);

}  // namespace

ParentsModel::ParentsModel(SharedAllocation allocation, QObject* parent)
    : QAbstractTableModel(parent),
      allocation_(std::move(allocation)),
      parents_(SummariesOfParents(allocation_->settings.flow, allocation_->run.input,
                                  allocation_->run.result)) {}

int ParentsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(parents_.size());
}

int ParentsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(Column::kCount);
}

QString ParentsModel::Name(int row) const {
  return Text(allocation_->run.input.table.Name(Parent(row).slot).Text());
}

std::size_t ParentsModel::WithoutOffspring() const {
  return static_cast<std::size_t>(
      std::count_if(parents_.begin(), parents_.end(),
                    [](const ParentSummary& parent) { return parent.offspring == 0; }));
}

QString ParentsModel::SexName(int row) const {
  const SlotRange females = allocation_->run.input.second_parents;
  return females.Holds(Parent(row).slot) ? Tr("female") : Tr("male");
}

/// The number of a cell; below all others where it is not known.
double ParentsModel::Number(Column column, int row) const {
  const ParentSummary& parent = Parent(row);
  switch (column) {
    case Column::kRank:
      return RankInFile(allocation_->run.input, parent.slot);
    case Column::kOffspring:
      return static_cast<double>(parent.offspring);
    case Column::kNamed:
      return parent.expected_offspring ? static_cast<double>(parent.named) : -1;
    case Column::kExpected:
      return parent.expected_offspring.value_or(-1);
    case Column::kMates:
      return static_cast<double>(parent.mates);
    default:
      return static_cast<double>(parent.with_uncollected);
  }
}

QString ParentsModel::CellText(Column column, int row) const {
  if (column == Column::kParent) {
    return Name(row);
  }
  if (column == Column::kSex) {
    return SexName(row);
  }
  const double number = Number(column, row);
  return number < 0 ? Text("NA") : ShortNumber(number);
}

bool ParentsModel::IsBefore(Column column, int a, int b) const {
  return IsText(column) ? CellText(column, a) < CellText(column, b)
                        : Number(column, a) < Number(column, b);
}

QVariant ParentsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const auto column = static_cast<Column>(index.column());
  if (role == Qt::DisplayRole) {
    return CellText(column, index.row());
  }
  if (role == Qt::TextAlignmentRole && !IsText(column)) {
    return kAtRight;
  }
  return {};
}

QVariant ParentsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) {
    return {};
  }
  const auto column = static_cast<Column>(section);
  if (role == Qt::DisplayRole) {
    return Tr(TextsOf(column).head);
  }
  if (role == Qt::ToolTipRole) {
    return Tr(TextsOf(column).tip);
  }
  if (role == Qt::TextAlignmentRole && !IsText(column)) {
    return kAtRight;
  }
  return {};
}

ParentsFilter::ParentsFilter(ParentsModel& model, QObject* parent)
    : RowFilter(parent), model_(model) {
  setSourceModel(&model);
}

void ParentsFilter::Choose(const QString& name, ShownParents shown) {
  name_ = name;
  shown_ = shown;
  NarrowAgain();
}

bool ParentsFilter::Accepts(int row) const {
  const bool has_offspring = model_.Parent(row).offspring > 0;
  if (shown_ != ShownParents::kAll && has_offspring != (shown_ == ShownParents::kWithOffspring)) {
    return false;
  }
  return name_.isEmpty() || model_.Name(row).contains(name_, Qt::CaseInsensitive);
}

bool ParentsFilter::IsBefore(const QModelIndex& left, const QModelIndex& right) const {
  return model_.IsBefore(static_cast<Column>(left.column()), left.row(), right.row());
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/parents_model.h"

#include <algorithm>

#include "allocation/reports/result_line.h"
#include "app/base/text.h"
#include "app/results/data_table.h"

namespace kaldo {

namespace {

using Column = ParentColumn;

struct ColumnTexts {
  std::string_view head;
  std::string_view tip;
};

ColumnTexts TextsOf(Column column) {
  switch (column) {
    case Column::kRank:
      return {"Rank", "Place in the file of the parents, separators counted."};
    case Column::kParent:
      return {"Parent", "Name of the collected parent."};
    case Column::kOffspring:
      return {"Offspring", "Offspring that the results allocate to it."};
    case Column::kNamed:
      return {"Named", "Offspring of which it is named a parent at the level of confidence."};
    case Column::kExpected:
      return {"Expected",
              "The sum of the probabilities of the allocations to it: so many of them "
              "are expected to be its own."};
    case Column::kMates:
      return {"Mates", "Collected parents with whom it has some of them."};
    case Column::kWithUncollected:
      return {"With UC", "Offspring whose other parent is taken as uncollected."};
    case Column::kCount:
      break;
  }
  return {};
}

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

/// A number, or the text of a name or of what is not known.
QVariant ParentsModel::Value(Column column, int row) const {
  const ParentSummary& parent = Parent(row);
  switch (column) {
    case Column::kRank:
      return RankInFile(allocation_->run.input, parent.slot);
    case Column::kParent:
      return Name(row);
    case Column::kOffspring:
      return static_cast<qulonglong>(parent.offspring);
    case Column::kNamed:
      return parent.expected_offspring ? QVariant(static_cast<qulonglong>(parent.named))
                                       : QVariant(Text("NA"));
    case Column::kExpected:
      return parent.expected_offspring ? QVariant(*parent.expected_offspring)
                                       : QVariant(Text("NA"));
    case Column::kMates:
      return static_cast<qulonglong>(parent.mates);
    default:
      return static_cast<qulonglong>(parent.with_uncollected);
  }
}

QVariant ParentsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const auto column = static_cast<Column>(index.column());
  if (role == Qt::UserRole) {
    return Value(column, index.row());
  }
  if (role == Qt::DisplayRole) {
    const QVariant value = Value(column, index.row());
    return value.typeId() == QMetaType::Double ? ShortNumber(value.toDouble()) : value.toString();
  }
  if (role == Qt::TextAlignmentRole && column != Column::kParent) {
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
    return Text(TextsOf(column).head);
  }
  if (role == Qt::ToolTipRole) {
    return Text(TextsOf(column).tip);
  }
  if (role == Qt::TextAlignmentRole && column != Column::kParent) {
    return kAtRight;
  }
  return {};
}

ParentsFilter::ParentsFilter(ParentsModel& model, QObject* parent)
    : QSortFilterProxyModel(parent), model_(model) {
  setSourceModel(&model);
  setSortRole(Qt::UserRole);  // numbers as numbers
}

void ParentsFilter::Choose(const QString& name, ShownParents shown) {
  name_ = name;
  shown_ = shown;
  invalidateFilter();
}

bool ParentsFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  const bool has_offspring = model_.Parent(row).offspring > 0;
  if (shown_ != ShownParents::kAll && has_offspring != (shown_ == ShownParents::kWithOffspring)) {
    return false;
  }
  return name_.isEmpty() || model_.Name(row).contains(name_, Qt::CaseInsensitive);
}

}  // namespace kaldo

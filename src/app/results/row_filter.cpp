// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/row_filter.h"

#include <algorithm>
#include <numeric>

namespace kaldo {

void RowFilter::setSourceModel(QAbstractItemModel* source) {
  beginResetModel();
  QAbstractProxyModel::setSourceModel(source);
  order_.resize(static_cast<std::size_t>(source->rowCount()));
  std::iota(order_.begin(), order_.end(), 0);
  shown_ = order_;
  places_ = order_;
  connect(source, &QAbstractItemModel::dataChanged, this, [this] {
    if (rowCount() > 0) {
      Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
  });
  endResetModel();
}

void RowFilter::Arrange() {
  shown_.clear();
  shown_.reserve(order_.size());
  std::fill(places_.begin(), places_.end(), -1);
  for (const int row : order_) {
    if (Accepts(row)) {
      places_[static_cast<std::size_t>(row)] = static_cast<int>(shown_.size());
      shown_.push_back(row);
    }
  }
}

void RowFilter::NarrowAgain() {
  beginResetModel();
  Arrange();
  endResetModel();
}

void RowFilter::sort(int column, Qt::SortOrder order) {
  Q_EMIT layoutAboutToBeChanged();
  const QModelIndexList before = persistentIndexList();
  QModelIndexList sources;
  for (const QModelIndex& index : before) {
    sources += mapToSource(index);
  }
  std::iota(order_.begin(), order_.end(), 0);
  if (column >= 0) {
    std::stable_sort(order_.begin(), order_.end(), [&](int a, int b) {
      const QModelIndex one = sourceModel()->index(a, column);
      const QModelIndex other = sourceModel()->index(b, column);
      return order == Qt::AscendingOrder ? IsBefore(one, other) : IsBefore(other, one);
    });
  }
  Arrange();
  QModelIndexList after;
  for (const QModelIndex& source : std::as_const(sources)) {
    after += mapFromSource(source);
  }
  changePersistentIndexList(before, after);
  Q_EMIT layoutChanged();
}

QModelIndex RowFilter::ShownOrFirst(const QModelIndex& source) const {
  const QModelIndex shown = mapFromSource(source);
  return shown.isValid() ? shown : index(0, 0);
}

QModelIndex RowFilter::mapToSource(const QModelIndex& index) const {
  return index.isValid()
             ? sourceModel()->index(shown_[static_cast<std::size_t>(index.row())], index.column())
             : QModelIndex();
}

QModelIndex RowFilter::mapFromSource(const QModelIndex& source) const {
  const int place = source.isValid() ? places_[static_cast<std::size_t>(source.row())] : -1;
  return place < 0 ? QModelIndex() : createIndex(place, source.column());
}

QModelIndex RowFilter::index(int row, int column, const QModelIndex& parent) const {
  return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex RowFilter::parent(const QModelIndex& /*index*/) const { return {}; }

int RowFilter::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int RowFilter::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || sourceModel() == nullptr ? 0 : sourceModel()->columnCount();
}

QVariant RowFilter::headerData(int section, Qt::Orientation orientation, int role) const {
  // The heads are those of the source, also while no row is shown.
  return sourceModel() == nullptr ? QVariant()
                                  : sourceModel()->headerData(section, orientation, role);
}

}  // namespace kaldo

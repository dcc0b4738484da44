// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractProxyModel>
#include <cstdint>
#include <vector>

namespace kaldo {

/// The rows of a table as the user has sorted and narrowed them. It does what QSortFilterProxyModel
/// does, for large tables: the order of all rows is kept, and narrowing walks over it once, so that
/// 50,000 rows follow every letter that is typed.
class RowFilter : public QAbstractProxyModel {
 public:
  explicit RowFilter(QObject* parent) : QAbstractProxyModel(parent) {}

  /// The table itself does not change: only its colours may.
  void setSourceModel(QAbstractItemModel* source) override;

  /// The row of this model that shows `source`, or else the first one; invalid when there is none.
  QModelIndex ShownOrFirst(const QModelIndex& source) const;

  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

  QModelIndex mapToSource(const QModelIndex& index) const override;
  QModelIndex mapFromSource(const QModelIndex& source) const override;
  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 protected:
  /// To be called when other rows are accepted than before.
  void NarrowAgain();

  virtual bool Accepts(int row) const = 0;

  /// Equals stay in the order of the source.
  virtual bool IsBefore(const QModelIndex& left, const QModelIndex& right) const = 0;

 private:
  void Arrange();

  std::vector<int> order_;   ///< all rows of the source
  std::vector<int> shown_;   ///< those accepted
  std::vector<int> places_;  ///< of every row of the source among them; -1 for one that is not
};

}  // namespace kaldo

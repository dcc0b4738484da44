// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <vector>

#include "allocation/parent_summary.h"
#include "app/results/finished_runs.h"

namespace kaldo {

enum class ParentColumn {
  kRank,  ///< place in its file
  kParent,
  kOffspring,
  kNamed,  ///< offspring of which it is named a parent
  kExpected,
  kMates,
  kWithUncollected,
  kCount,
};

/// The collected parents with what is allocated to each, one row each.
class ParentsModel : public QAbstractTableModel {
 public:
  ParentsModel(SharedAllocation allocation, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

  const ParentSummary& Parent(int row) const { return parents_[static_cast<std::size_t>(row)]; }
  QString Name(int row) const;

  /// How many have no offspring.
  std::size_t WithoutOffspring() const;

 private:
  QVariant Value(ParentColumn column, int row) const;

  SharedAllocation allocation_;
  std::vector<ParentSummary> parents_;
};

enum class ShownParents { kAll, kWithOffspring, kWithoutOffspring };

/// The table of parents as the user has sorted and narrowed it.
class ParentsFilter : public QSortFilterProxyModel {
 public:
  ParentsFilter(ParentsModel& model, QObject* parent);

  void Choose(const QString& name, ShownParents shown);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  ParentsModel& model_;
  QString name_;
  ShownParents shown_ = ShownParents::kAll;
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "allocation/parent_summary.h"
#include "app/results/finished_runs.h"
#include "app/results/row_filter.h"

namespace kaldo {

enum class ParentColumn {
  kRank,  ///< place in its file
  kParent,
  kSex,  ///< where sexes are known
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
  QString SexName(int row) const;

  /// Whether a row comes before another one by what stands in a column; what is not known comes
  /// first.
  bool IsBefore(ParentColumn column, int a, int b) const;

  /// How many have no offspring.
  std::size_t WithoutOffspring() const;

 private:
  double Number(ParentColumn column, int row) const;
  QString CellText(ParentColumn column, int row) const;

  SharedAllocation allocation_;
  std::vector<ParentSummary> parents_;
};

enum class ShownParents { kAll, kWithOffspring, kWithoutOffspring };

/// The table of parents as the user has sorted and narrowed it.
class ParentsFilter : public RowFilter {
 public:
  ParentsFilter(ParentsModel& model, QObject* parent);

  void Choose(const QString& name, ShownParents shown);

 protected:
  bool Accepts(int row) const override;
  bool IsBefore(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  ParentsModel& model_;
  QString name_;
  ShownParents shown_ = ShownParents::kAll;
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <optional>

#include "app/results/finished_runs.h"

namespace kaldo {

/// What stands in the columns of the offspring table. Parent 1 and 2 are the male and the female of
/// a sexed run.
enum class OffspringColumn {
  kPlace,  ///< in the offspring file, from 1
  kOffspring,
  kParent1,
  kParent2,
  kRank1,
  kRank2,
  kErrors1,
  kErrors2,
  kClass,
  kPairs,
  kLikelihood,
  kCount,
};

/// The offspring of an allocation with the parents that the results report names, one row each.
class OffspringModel : public QAbstractTableModel {
 public:
  OffspringModel(SharedAllocation allocation, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

  /// True where row `a` stands before row `b` in ascending order of a column: numbers as numbers,
  /// "UC" before all ranks.
  bool IsBefore(OffspringColumn column, int a, int b) const;

  /// True where the name of the offspring or of a parent shown in its row contains `text`.
  bool HasName(int row, const QString& text) const;

  const AllocationOutcome& Outcome(int row) const;
  Flow RunFlow() const { return allocation_->settings.flow; }

 private:
  QString CellText(OffspringColumn column, int row) const;
  double Number(OffspringColumn column, int row) const;
  QString Name(int row) const;
  QString SideName(OffspringColumn column, int row) const;

  SharedAllocation allocation_;
};

/// Which offspring are shown.
struct OffspringChoice {
  QString name;                          ///< part of a name; empty for all
  std::optional<std::size_t> the_class;  ///< by its place in ClassNames()
  bool only_several_pairs = false;
  bool only_without_pair = false;
};

/// The offspring table as the user has sorted and narrowed it.
class OffspringFilter : public QSortFilterProxyModel {
 public:
  OffspringFilter(OffspringModel& model, QObject* parent);

  /// Narrows the rows to what is chosen.
  void Choose(const OffspringChoice& choice);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  OffspringModel& model_;
  OffspringChoice choice_;
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <optional>

#include "app/results/chart_theme.h"
#include "app/results/finished_runs.h"
#include "app/results/offspring_columns.h"
#include "app/results/row_filter.h"
#include "confidence/certainty.h"

namespace kaldo {

/// The offspring of an allocation with the parents that the results report names and how sure they
/// are, one row each.
class OffspringModel : public QAbstractTableModel {
 public:
  OffspringModel(SharedAllocation allocation, QObject* parent);

  void SetColours(const CertaintyColours& colours);

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

  /// True where the results name this parent in the row.
  bool HasParent(int row, Slot parent) const;

  const AllocationOutcome& Outcome(int row) const;

  /// How sure the parents in the row are; nothing without posteriors.
  const OffspringConfidence* Confidence(int row) const;

  Flow RunFlow() const { return allocation_->settings.flow; }

 private:
  QString CellText(OffspringColumn column, int row) const;
  QString ConfidenceText(OffspringColumn column, int row) const;
  std::optional<double> ConfidenceNumber(OffspringColumn column, int row) const;
  std::optional<Slot> ConfidenceName(OffspringColumn column, int row) const;
  double Number(OffspringColumn column, int row) const;
  QString Name(int row) const;
  QString SideName(OffspringColumn column, int row) const;

  SharedAllocation allocation_;
  CertaintyColours colours_;

  /// The names that a row is found by, with a line end between them; made at the first search.
  mutable std::vector<QString> names_;
};

/// Which offspring are shown.
struct OffspringChoice {
  QString name;                          ///< part of a name; empty for all
  std::optional<std::size_t> the_class;  ///< by its place in ClassNames()
  std::optional<Certainty> certainty;
  std::optional<Slot> parent;                    ///< of the offspring, as the results name it
  std::optional<std::vector<std::size_t>> only;  ///< these, by their places in the file, ascending
  bool only_to_check = false;                    ///< those with a Doubt
  bool only_several_pairs = false;
  bool only_without_pair = false;
};

/// The offspring table as the user has sorted and narrowed it.
class OffspringFilter : public RowFilter {
 public:
  OffspringFilter(OffspringModel& model, QObject* parent);

  /// Narrows the rows to what is chosen.
  void Choose(const OffspringChoice& choice);

 protected:
  bool Accepts(int row) const override;
  bool IsBefore(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  OffspringModel& model_;
  OffspringChoice choice_;
};

}  // namespace kaldo

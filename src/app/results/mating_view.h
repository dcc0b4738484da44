// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <memory>
#include <set>
#include <utility>

#include "app/results/chart_theme.h"
#include "app/results/mating_table.h"

namespace kaldo {

/// The table of matings as a model: a number of offspring in each cell, and what a tip and a screen
/// reader tell of it.
class MatingModel : public QAbstractTableModel {
 public:
  MatingModel(std::shared_ptr<const MatingTable> table, QObject* parent);

  void SetTheme(const ChartTheme& theme);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  std::shared_ptr<const MatingTable> table_;
  ChartTheme theme_;
};

/// Shows the table of matings: names at its left and, turned, above it. Cells are as large as their
/// numbers need, or so small that the whole table is seen at once. Arrow keys go from cell to cell,
/// with Ctrl from family to family; Enter or a double click activates a cell.
class MatingView : public QTableView {
 public:
  explicit MatingView(std::shared_ptr<const MatingTable> table, QWidget* parent = nullptr);

  /// Frames these places until others are given.
  void Mark(const std::vector<MatingPlace>& places);
  bool IsMarked(const QModelIndex& index) const;

  void Choose(MatingPlace place);

  /// The chosen place; nothing in an empty table.
  std::optional<MatingPlace> Chosen() const;

  /// The whole table at once, or cells with readable numbers.
  void ShowWhole(bool whole);

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitCells();
  QSize CellSize() const;
  bool GoToNextFamily(int key);

  std::shared_ptr<const MatingTable> table_;
  MatingModel* model_;
  std::set<std::pair<int, int>> marked_;
  bool is_whole_ = false;
};

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <string_view>

#include "app/base/tr.h"
#include "app/results/data_table.h"

class QLayout;

namespace kaldo {

/// A small table of texts as a model; whatever is a number stands at the right.
class DataTableModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void SetTable(DataTable table);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  DataTable table_;
};

/// A table of results: whole rows are selected, all rows have one height (so that a million of them
/// cost nothing), and Ctrl+C or the context menu copies the selected rows under their heads for a
/// spreadsheet.
class ResultTable : public QTableView {
 public:
  /// `name` is read out to who cannot see the table.
  explicit ResultTable(const QString& name, QWidget* parent = nullptr);

  void setModel(QAbstractItemModel* model) override;

  /// Puts the selected rows, or all where none is selected, with their heads on the clipboard.
  void CopyRows() const;

  /// Asks for a file and writes all rows as they are shown to it.
  void ExportRows(const QString& suggested);

  /// The same to a known file; false, and the reason shown, when it cannot be written.
  bool SaveCsv(const QString& path);

  /// Makes every column as wide as its head and rows from all over the table ask for.
  void FitColumns();

  /// The width at which all columns are seen at once.
  int FullWidth() const;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddActions();
};

/// The buttons below a table that copy its rows and export it, called NAME + "Copy" and "Export".
/// `path` is suggested for the export.
QLayout* NewTableButtons(ResultTable& table, std::string_view name, Phrase copy_help,
                         Phrase export_help, const QString& path);

}  // namespace kaldo

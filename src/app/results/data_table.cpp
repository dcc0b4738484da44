// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/data_table.h"

#include <QAbstractItemModel>
#include <cmath>

#include <fmt/format.h>

#include "app/base/text.h"
#include "base/number_text.h"
#include "genotypes/name_rules.h"

namespace kaldo {

namespace {

/// The cell so that a spreadsheet shows it as it is: an apostrophe makes a text of a name that
/// would become a formula, a date or another number. Figures stay figures.
QString AsShown(const QString& cell) {
  const std::string text = cell.toStdString();
  if (IsSignOfNoParent(text) || !SpreadsheetReading(text)) {
    return cell;
  }
  return IsFigure(cell) ? cell : QLatin1Char('\'') + cell;
}

void AppendCsvRow(const QStringList& cells, QByteArray& csv) {
  for (qsizetype column = 0; column < cells.size(); ++column) {
    QByteArray cell = AsShown(cells[column]).toUtf8();
    if (cell.contains('"') || cell.contains(',') || cell.contains('\n') || cell.contains('\r')) {
      cell = '"' + cell.replace('"', "\"\"") + '"';
    }
    csv += column == 0 ? cell : ',' + cell;
  }
  csv += "\r\n";
}

}  // namespace

QString ShortNumber(std::optional<double> value) {
  return value ? Text(FormatDouble(*value)) : Text("NA");
}

QString FullNumber(std::optional<double> value) {
  if (!value) {
    return Text("NA");
  }
  return std::isnan(*value) ? Text("nan") : Text(fmt::format("{}", *value));
}

bool IsFigure(const QString& cell) {
  bool is_number = false;
  const double value = cell.toDouble(&is_number);
  return is_number && (cell == ShortNumber(value) || cell == FullNumber(value));
}

QByteArray CsvText(const DataTable& table) {
  QByteArray csv;
  AppendCsvRow(table.heads, csv);
  for (const QStringList& row : table.rows) {
    AppendCsvRow(row, csv);
  }
  return csv;
}

QByteArray CsvText(const QAbstractItemModel& model) {
  const int columns = model.columnCount();
  QByteArray csv;
  QStringList cells;
  for (int column = 0; column < columns; ++column) {
    cells += model.headerData(column, Qt::Horizontal).toString();
  }
  AppendCsvRow(cells, csv);
  for (int row = 0; row < model.rowCount(); ++row) {
    cells.clear();
    for (int column = 0; column < columns; ++column) {
      cells += model.index(row, column).data().toString();
    }
    AppendCsvRow(cells, csv);
  }
  return csv;
}

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>
#include <vector>

class QAbstractItemModel;

namespace kaldo {

/// A small table of texts under their heads.
struct DataTable {
  QStringList heads;
  std::vector<QStringList> rows;
};

/// A value as the reports show it, with at most six digits and a point; "NA" for nothing.
QString ShortNumber(std::optional<double> value);

/// A value with as many digits as it takes to read back the same number; "NA" for nothing.
QString FullNumber(std::optional<double> value);

/// Whether a cell is a number as ShortNumber() or FullNumber() write it; 00012 and 1e5 are names.
bool IsFigure(const QString& cell);

/// Comma-separated values as every statistics program reads them (RFC 4180), in UTF-8. Before a
/// name that a spreadsheet would take for a formula, a date or a number stands an apostrophe.
QByteArray CsvText(const DataTable& table);

/// The same of all rows of a model as it shows them.
QByteArray CsvText(const QAbstractItemModel& model);

}  // namespace kaldo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QString>

class QAbstractItemModel;

namespace kaldo {

/// Rows of a table on their way to the clipboard, in two forms. The plain one has a tab between
/// cells. In the other every name is marked as text, so that a spreadsheet makes no date of Mar1 or
/// 1-2 and no number of 00012, and every figure as the number that it is.
class CopiedRows {
 public:
  /// Figures are those in columns of numbers, which stand at the right. They get the decimal sign
  /// of the desktop, as a spreadsheet there reads them.
  CopiedRows(const QAbstractItemModel& model, QChar decimal_sign);

  /// Adds these rows and all between them.
  void Add(int first, int last);

  const QString& Plain() const { return plain_; }
  QString Html() const;

 private:
  void AddCell(const QString& cell, bool may_be_figure, bool is_first);
  void EndRow();

  const QAbstractItemModel& model_;
  QChar decimal_sign_;
  QString plain_;
  QString html_;
};

}  // namespace kaldo
